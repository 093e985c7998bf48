// Arguments: FOLDER LANGUAGE KEY
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/StandardPlatform.h>

#include "firsttext/Answer.h"

int main(int /*count*/, char** words) {
  using namespace orvanta;
  standard::StandardOptions options;
  options.mainBundlePath = std::string(words[1]) + "/Bundle";
  options.cachesPath = std::string(words[1]) + "/Caches";
  options.deviceLanguages = {words[2]};
  platform::Platform::install(standard::makeStandardPlatform(options));
  bench::answer(Localizer::sharedLocalizer().localizedStringForKey(words[3]).view());
}
