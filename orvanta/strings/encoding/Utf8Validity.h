#pragma once

#include <string_view>

namespace orvanta::strings {

/// The same as `utf8::isValid`, fast enough not to matter when a whole file is read.
[[nodiscard]] bool isValidUtf8(std::string_view text) noexcept;

}  // namespace orvanta::strings
