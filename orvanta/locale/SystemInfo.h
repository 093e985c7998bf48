#pragma once

#include <orvanta/platform/Platform.h>

namespace orvanta::SystemInfo {

// Each build's answers have names of their own, so that parts of both may stand in one program.
#ifdef ORVANTA_TELEVISION
inline namespace television {
inline constexpr bool kTelevision = true;
#else
inline namespace handheld {
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

}  // namespace

/// Whether the running system reports at least this version. From any thread.
[[nodiscard]] inline bool isAtLeastMajorVersion(long major, long minor, long patch) {
  return platform::Platform::current().processInfo->isOperatingSystemAtLeastVersion(
      {major, minor, patch});
}

}  // namespace orvanta::SystemInfo
