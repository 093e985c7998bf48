// The code of docs/languages.md. The argument is a folder with tables.
#include <cstdlib>
#include <iostream>
#include <string>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardPlatform.h>

namespace {

void useTablesOf(const std::string& folder) {
  orvanta::platform::Platform::install(
      orvanta::standard::makeStandardPlatform({.mainBundlePath = folder}));
}

class StatusLine {
 public:
  StatusLine() {
    orvanta::platform::Platform::current().notifications->addObserver(
        this, orvanta::OVPreferredLocaleDidChangeNotification, nullptr,
        [this](const orvanta::platform::Notification& change) {
          const auto* adopted = change.userInfo.find(orvanta::OVPreferredLocaleKey);
          language_ = adopted->front();
        });
  }
  ~StatusLine() { orvanta::platform::Platform::current().notifications->removeObserver(this); }
  StatusLine(const StatusLine&) = delete;
  StatusLine& operator=(const StatusLine&) = delete;

  [[nodiscard]] const orvanta::String& language() const { return language_; }

 private:
  orvanta::String language_;
};

void sendTheSwissToGermany() {
  orvanta::FallbackTable::Map rows;
  for (const auto& [requested, instead] : orvanta::makeFallbackTable()) {
    rows.emplace(requested, instead);
  }
  rows.emplace("gsw", "de");
  orvanta::Localizer::sharedLocalizer().setFallbackTable(orvanta::FallbackTable(std::move(rows)));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    return EXIT_FAILURE;
  }
  useTablesOf(argv[1]);
  const StatusLine status;
  sendTheSwissToGermany();
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  localizer.updatePreferredLocales({"gsw"}, nullptr);
  while (orvanta::standard::RunLoop::main()->runPending() > 0) {
  }
  std::cout << status.language() << ' ' << localizer.localizedStringForKey("signin.title") << '\n';
}
