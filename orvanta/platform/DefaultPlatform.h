#pragma once

#include <orvanta/platform/Platform.h>

namespace orvanta::platform {

/// The platform of an application that installs none: the standard one with its default options.
[[nodiscard]] Platform makeDefaultPlatform();

}  // namespace orvanta::platform
