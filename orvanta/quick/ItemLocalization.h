#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QString>
#include <memory>

#include <QtQml/qqmlregistration.h>

#include <orvanta/controls/LocalizedControl.h>

namespace orvanta::quick {

/// What the three localized elements have in common: an object in the item that it localizes, which
/// awakens the library's control once the item has its designed state.
class ItemLocalization : public QObject, public QQmlParserStatus {
  Q_OBJECT
  Q_INTERFACES(QQmlParserStatus)
  QML_ANONYMOUS
  /// The item around this object.
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget)
  /// The key of the text; empty where there is none. A key that is set shows its text now and after
  /// every change of language, translated or not. With an empty one the text is left to the
  /// application.
  Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged)
  /// Keys when the item is made, if its text is one; then what is spoken.
  Q_PROPERTY(QString accessibleName READ accessibleName WRITE setAccessibleName NOTIFY
                 accessibleNameChanged)
  Q_PROPERTY(QString accessibleDescription READ accessibleDescription WRITE setAccessibleDescription
                 NOTIFY accessibleDescriptionChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target) { target_ = target; }
  [[nodiscard]] QString key() const { return key_; }
  void setKey(const QString& key);
  [[nodiscard]] QString accessibleName() const { return accessibleName_; }
  void setAccessibleName(const QString& name);
  [[nodiscard]] QString accessibleDescription() const { return accessibleDescription_; }
  void setAccessibleDescription(const QString& description);

  void classBegin() override {}
  void componentComplete() override;

 Q_SIGNALS:
  void keyChanged();
  void accessibleNameChanged();
  void accessibleDescriptionChanged();

 protected:
  /// Makes the control of an item with its designed state, and awakens it.
  [[nodiscard]] virtual std::unique_ptr<LocalizedControl> awaken(QQuickItem& item) = 0;
  /// The item is mirrored now, or not any more.
  virtual void mirrored() {}

 private:
  Q_SLOT void effectiveAlignmentChanged() { mirrored(); }

  void applyKey();
  void followMirroring();

  QQuickItem* target_ = nullptr;
  QString key_;
  QString accessibleName_;
  QString accessibleDescription_;
  std::unique_ptr<LocalizedControl> control_;
};

}  // namespace orvanta::quick
