#include <orvanta/cache/OVStringCache.h>

#include "Commands.h"

namespace ovlocalize {

int clear(const Settings& settings) {
  installPlatform(settings);
  orvanta::OVStringCache().clearCache();
  return 0;
}

}  // namespace ovlocalize
