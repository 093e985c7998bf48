// The one place outside platform/standard that knows the standard platform.
#include <orvanta/platform/DefaultPlatform.h>
#include <orvanta/platform/standard/StandardPlatform.h>

namespace orvanta::platform {

Platform makeDefaultPlatform() {
  return standard::makeStandardPlatform();
}

}  // namespace orvanta::platform
