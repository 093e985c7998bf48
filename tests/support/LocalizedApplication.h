#pragma once

#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/standard/StandardProcessInfo.h>

#include "TestApplication.h"

namespace orvanta::test {

/// An application with the shared localizer. There is one in a process, so each application resets
/// it.
class LocalizedApplication : public TestApplication {
 public:
  explicit LocalizedApplication(const Languages& shipped,
                                std::vector<std::string> deviceLanguages = {"en"},
                                platform::Platform replacements = {})
      : TestApplication(shipped, std::move(deviceLanguages), std::move(replacements)) {
    Localizer& localizer = Localizer::sharedLocalizer();
    localizer.setStringCache(nullptr);
    localizer.setMainBundle(platform::Platform::current().bundles->mainBundle());
    localizer.setDefaultLocaleBundle(nullptr);
    localizer.setFallbackTable({});
    localizer.setOriginalLocales({});
    localizer.useDefaultLocale();
    loop->runPending();
  }

  /// Changes the language and delivers the notification.
  void speak(const StringList& locales) const {
    Localizer::sharedLocalizer().changeOrvantaLanguageToPreferredLocales(locales);
    loop->runPending();
  }

  /// Posts the notification of a change of language on the calling thread.
  static void post() {
    platform::Platform::current().notifications->postNotification(
        {String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr, {}});
  }
};

}  // namespace orvanta::test
