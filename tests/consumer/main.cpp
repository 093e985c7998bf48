#include <cstdlib>
#include <iostream>

#include <orvanta/orvanta.h>
#include <orvanta/standard/StandardPlatform.h>

namespace {

orvanta::String signIn() {
  return orvanta::Localizer::sharedLocalizer().localizedStringForKey("signin.title");
}

/// Asks for a text while static objects are initialised, possibly before those of the library.
struct Early {
  Early() {
    orvanta::platform::Platform::install(
        orvanta::standard::makeStandardPlatform({.mainBundlePath = std::getenv("BUNDLE")}));
    orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"fr-CA"}, nullptr);
    text = signIn();
  }
  orvanta::String text;
} early;

}  // namespace

int main() {
  std::cout << OrvantaLocalizerVersionNumber << ' ' << early.text << ' ' << signIn() << '\n';
  return 0;
}
