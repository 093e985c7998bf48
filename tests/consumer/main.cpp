#include <iostream>

#include <orvanta/orvanta.h>
#include <orvanta/standard/StandardPlatform.h>

// Prints the text of one key of the bundle given, in the language given.
int main(int argc, char** argv) {
  if (argc != 4) {
    return 2;
  }
  orvanta::platform::Platform::install(
      orvanta::standard::makeStandardPlatform({.mainBundlePath = argv[1]}));
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  localizer.updatePreferredLocales({argv[2]}, nullptr);
  std::cout << OrvantaLocalizerVersionNumber << ' ' << localizer.localizedStringForKey(argv[3])
            << '\n';
  return 0;
}
