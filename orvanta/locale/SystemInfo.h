#pragma once

#include <orvanta/platform/Platform.h>

namespace orvanta::SystemInfo {

#ifdef ORVANTA_TELEVISION
inline constexpr bool kTelevision = true;
#else
inline constexpr bool kTelevision = false;
#endif

/// Whether this build is for television sets. A constant of the build, never a question to the
/// system: the library is built for phones and tablets.
[[nodiscard]] constexpr bool isTVOS() noexcept {
  return kTelevision;
}

/// Whether this build is for phones and tablets.
[[nodiscard]] constexpr bool isIOS() noexcept {
  return !kTelevision;
}

/// Whether the running system reports at least this version. From any thread.
[[nodiscard]] inline bool isAtLeastMajorVersion(long major, long minor, long patch) {
  return platform::Platform::current().processInfo->isOperatingSystemAtLeastVersion(
      {major, minor, patch});
}

}  // namespace orvanta::SystemInfo
