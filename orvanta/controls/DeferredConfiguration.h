#pragma once

#include <orvanta/locale/SystemInfo.h>

namespace orvanta {

/// Whether a control that was just loaded from a layout is configured at a later turn of the main
/// queue, by what it shows then. So on television sets before 9.1.0, and only there.
[[nodiscard]] inline bool configurationIsDeferred() {
  return SystemInfo::isTVOS() && !SystemInfo::isAtLeastMajorVersion(9, 1, 0);
}

}  // namespace orvanta
