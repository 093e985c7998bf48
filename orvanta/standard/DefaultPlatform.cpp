// The default platform is the standard one.
#include <orvanta/platform/DefaultPlatform.h>
#include <orvanta/standard/StandardPlatform.h>

namespace orvanta::platform {

platform::Platform makeDefaultPlatform() {
  return standard::makeStandardPlatform();
}

}  // namespace orvanta::platform
