#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/qt/LanguageChangeObserver.h>
#include <orvanta/qt/platform/QtPlatformCheck.h>

namespace orvanta::qt {

LanguageChangeObserver::LanguageChangeObserver(std::function<void()> step)
    : step_(std::make_shared<std::function<void()>>(std::move(step))) {
  warnWithoutQtPlatform();
  platform::Platform::current().notifications->addObserver(
      this, String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr,
      [held = step_](const platform::Notification&) {
        platform::Platform::current().mainQueue->performOnMainThreadAndWait([&held] {
          // A copy: the step may destroy its own observer.
          if (const std::function<void()> current = *held) {
            current();
          }
        });
      });
}

LanguageChangeObserver::~LanguageChangeObserver() {
  platform::Platform::current().notifications->removeObserver(this);
  *step_ = nullptr;
}

}  // namespace orvanta::qt
