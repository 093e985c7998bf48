#include <orvanta/qt/LocalizedWidget.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtPlatformCheck.h>

namespace orvanta::qt {

LocalizedWidget::LocalizedWidget() = default;

LocalizedWidget::~LocalizedWidget() = default;

void LocalizedWidget::awakeFromNib() {
  if (awake_) {
    refresh();
    return;
  }
  setAwake();
  awake();
}

QString LocalizedWidget::key() const {
  return toQString(control().originalKey());
}

void LocalizedWidget::setKey(const QString& key) {
  if (!awake_) {
    awakeFromNib();
  }
  control().setOriginalKey(fromQString(key));
  refresh();
}

void LocalizedWidget::setAwake() {
  warnWithoutQtPlatform();
  awake_ = true;
}

void LocalizedWidget::afterEvent(QEvent::Type type) {
  if (type == QEvent::LanguageChange && awake_) {
    refresh();
  }
}

void LocalizedWidget::refresh() const {
  control().handleOVPreferredLocaleDidChangeNotification(nullptr);
}

}  // namespace orvanta::qt
