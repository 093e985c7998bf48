#pragma once

#include <orvanta/platform/Platform.h>

namespace orvanta::platform {

/// What is used where the application installs nothing: the standard platform.
[[nodiscard]] Platform makeDefaultPlatform();

}  // namespace orvanta::platform
