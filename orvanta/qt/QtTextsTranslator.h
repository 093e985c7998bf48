#pragma once

#include <QReadWriteLock>
#include <QString>
#include <QTranslator>
#include <memory>

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// Qt's own texts in the current language: the buttons and titles of its dialogs, the menus of text
/// fields, the names of keys.
///
///     orvanta::qt::QtTextsTranslator qtTexts;
///     QCoreApplication::installTranslator(&qtTexts);
///
/// Install it before the application's own translators, which Qt asks first. It reads the files
/// that come with Qt, such as qtbase_fr.qm; in a language without one those texts are English.
/// After each change of language it reads the file and then posts Qt's `LanguageChange`.
///
/// The file also tells Qt the direction of layouts, so that an application whose direction was not
/// set is mirrored.
///
/// Made and destroyed on the main thread; translates on any.
class ORVANTA_QT_EXPORT QtTextsTranslator : public QTranslator {
  Q_OBJECT

 public:
  /// Reads from the folder of Qt's translations, QLibraryInfo's `TranslationsPath`.
  explicit QtTextsTranslator(QObject* parent = nullptr);
  /// Reads the files `qtbase_<language>.qm` in this folder.
  explicit QtTextsTranslator(QString folder, QObject* parent = nullptr);

  /// Null where Qt has no translation.
  [[nodiscard]] QString translate(const char* context, const char* sourceText,
                                  const char* disambiguation = nullptr, int n = -1) const override;
  /// Never: Qt would not install an empty translator.
  [[nodiscard]] bool isEmpty() const override;

 private:
  void readTexts();

  const QString folder_;
  mutable QReadWriteLock lock_;         // Of what follows.
  std::unique_ptr<QTranslator> texts_;  // Null in a language without a file.
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
