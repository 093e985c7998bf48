#pragma once

#include <orvanta/locale/SystemInfo.h>

namespace orvanta {

/// Whether a control that was just loaded from a layout has to wait for a later turn of the main
/// queue: television sets before 9.1.0 set the designed text after the load.
[[nodiscard]] inline bool configurationIsDeferred() {
  return SystemInfo::isTVOS() && !SystemInfo::isAtLeastMajorVersion(9, 1, 0);
}

}  // namespace orvanta
