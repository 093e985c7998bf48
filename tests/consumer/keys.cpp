// Uses the header that orvanta_add_keys writes.
#include <cstdlib>
#include <iostream>

#include <app/keys.h>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/StandardPlatform.h>

namespace keys = app::keys;

template <typename T>
concept Countable = requires(T count) {
  keys::messages::order_items(count);
};
static_assert(Countable<int> && Countable<double> && Countable<orvanta::Decimal>);
static_assert(!Countable<const char*> && !Countable<std::string> && !Countable<bool>);

int main() {
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = std::getenv("BUNDLE");
  options.deviceLanguages = {"de"};
  orvanta::platform::Platform::install(orvanta::standard::makeStandardPlatform(options));
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  std::cout << localizer.localizedStringForKey(keys::signin_title) << ", "
            << keys::messages::order_items(2) << '\n';
}
