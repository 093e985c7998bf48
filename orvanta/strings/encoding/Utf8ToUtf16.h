#pragma once

#include <cstddef>

namespace orvanta::strings {

/// What the conversion may write past its end.
inline constexpr std::size_t kUtf16Slack = 32;

/// Converts valid UTF-8, of whole characters, to UTF-16, little-endian, and returns the end of the
/// output: at most twice the size of the input. May write `kUtf16Slack` bytes past it.
[[nodiscard]] char* utf8ToUtf16Little(const char* in, const char* inEnd, char* out) noexcept;

}  // namespace orvanta::strings
