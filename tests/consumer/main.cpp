#include <cstdlib>
#include <iostream>

#include <orvanta/orvanta.h>
#include <orvanta/standard/StandardPlatform.h>

#ifndef CONSUMER_RESOURCES
#define CONSUMER_RESOURCES ""
#endif

namespace {

orvanta::String signIn() {
  return orvanta::Localizer::sharedLocalizer().localizedStringForKey("signin.title");
}

/// Looks up a text during static initialisation, possibly before that of the library.
struct Early {
  Early() {
    orvanta::platform::Platform::install(orvanta::standard::makeStandardPlatform(
        {.mainBundlePath = std::getenv("BUNDLE"), .resourcesPath = CONSUMER_RESOURCES}));
    orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"fr-CA"}, nullptr);
    text = signIn();
  }
  orvanta::String text;
} early;

}  // namespace

int main() {
  const auto arabic = orvanta::localizationUtilities::corbetSansKufiArabicFont();
  std::cout << OrvantaLocalizerVersionNumber << ' ' << early.text << ' ' << signIn() << ' '
            << (arabic == nullptr ? "no font" : arabic->fontName()) << '\n';
  return 0;
}
