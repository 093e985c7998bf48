#include <orvanta/qt/LocalizedWidget.h>
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
