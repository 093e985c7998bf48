#include <iostream>

#include <orvanta/orvanta.h>

int main() {
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  const auto show = [&localizer] {
    std::cout << localizer.currentLocalesString() << ": "
              << localizer.localizedStringForKey("greeting") << ' '
              << orvanta::localizedMessageForKey("cart.items", {{"count", 2}}) << '\n';
  };
  show();                                                // the device's language, if it is shipped
  localizer.updatePreferredLocales({"fr", "en"}, "CA");  // tries fr-CA, fr, en-CA, en
  show();
  localizer.updatePreferredLocales({"en"}, {});
  show();
}
