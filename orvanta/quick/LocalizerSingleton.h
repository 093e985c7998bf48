#pragma once

#include <QFont>
#include <QJSValue>
#include <QObject>
#include <QString>
#include <QStringList>

#include <QtQml/qqmlregistration.h>

#include <orvanta/qt/LanguageChangeObserver.h>

#include "LanguagesModel.h"

class QJSEngine;
class QQmlEngine;

namespace orvanta::quick {

/// The functions behind `Orvanta.text` and its like. In QML a property that holds a function
/// notifies where a method of an object could not.
class LocalizerFunctions : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  Q_INVOKABLE [[nodiscard]] QString text(const QString& key) const;
  Q_INVOKABLE [[nodiscard]] QString message(const QString& key,
                                            const QJSValue& arguments = {}) const;
  Q_INVOKABLE [[nodiscard]] QFont font(const QFont& base) const;
};

/// The library's current language in QML, one object for each engine. Everything of it that depends
/// on the language notifies after each change, so that bindings follow. On the main thread alone.
class LocalizerSingleton : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Orvanta)
  QML_SINGLETON
  /// `Orvanta.text("menu.file")`: the text; the key where no language has one.
  Q_PROPERTY(QJSValue text READ text NOTIFY changed)
  /// `Orvanta.message("cart.items", {count: 3})`: the message that the text makes of the arguments.
  /// A list has the arguments "0", "1" and so on.
  Q_PROPERTY(QJSValue message READ message NOTIFY changed)
  /// `Orvanta.font(base)`: the font for texts in the current language, `base` or an Arabic one.
  Q_PROPERTY(QJSValue font READ font NOTIFY changed)
  /// The current identifiers, best first.
  Q_PROPERTY(QStringList locales READ locales NOTIFY changed)
  /// Whether the first of them is written from right to left, for `LayoutMirroring.enabled`.
  Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY changed)
  /// The available languages, with the roles identifier, name and downloaded.
  Q_PROPERTY(QAbstractItemModel* languages READ languages CONSTANT)

 public:
  explicit LocalizerSingleton(QJSEngine& engine);
  /// Called by the QML engine, which owns the result.
  static LocalizerSingleton* create(QQmlEngine* qmlEngine, QJSEngine* engine);

  [[nodiscard]] QJSValue text() const { return text_; }
  [[nodiscard]] QJSValue message() const { return message_; }
  [[nodiscard]] QJSValue font() const { return font_; }
  [[nodiscard]] static QStringList locales();
  [[nodiscard]] static bool rightToLeft();
  [[nodiscard]] QAbstractItemModel* languages() { return &languages_; }

  /// Changes the language, or goes to the best of several.
  Q_INVOKABLE void setLanguage(const QString& identifier);
  Q_INVOKABLE void setLanguages(const QStringList& identifiers);
  /// Reads anew which languages there are, after a download.
  Q_INVOKABLE void refreshLanguages();

 Q_SIGNALS:
  /// The language has changed.
  void changed();

 private:
  LanguagesModel languages_;
  QJSValue text_;
  QJSValue message_;
  QJSValue font_;
  qt::LanguageChangeObserver observer_;
};

}  // namespace orvanta::quick
