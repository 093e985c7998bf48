#pragma once

#include <cstddef>

namespace orvanta::strings {

/// Where a transcoder stopped, in both texts.
struct Transcoded {
  const char* in;
  char* out;
};

/// Turns UTF-16 of the given byte order, `in` to `inEnd`, into UTF-8, and stops where less than
/// `kUtf16Room` bytes of room are left. A lone surrogate becomes U+FFFD; so does an odd byte at the
/// end. All of the room may be overwritten.
inline constexpr std::size_t kUtf16Room = 64;

[[nodiscard]] Transcoded utf16LittleToUtf8(const char* in, const char* inEnd, char* out,
                                           char* outEnd) noexcept;
[[nodiscard]] Transcoded utf16BigToUtf8(const char* in, const char* inEnd, char* out,
                                        char* outEnd) noexcept;

}  // namespace orvanta::strings
