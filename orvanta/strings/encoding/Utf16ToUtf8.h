#pragma once

#include <cstddef>

#include <orvanta/strings/encoding/Utf8Repair.h>

namespace orvanta::strings {

/// The conversion may stop with less room than this left.
inline constexpr std::size_t kUtf16Room = 64;

/// Converts UTF-16 of the given byte order to UTF-8. Stops when less than `kUtf16Room` bytes of
/// room are left, or before an odd byte at the end. A lone surrogate becomes U+FFFD. May overwrite
/// all of the room.
[[nodiscard]] Transcoded utf16LittleToUtf8(const char* in, const char* inEnd, char* out,
                                           char* outEnd, Replacements& replacements) noexcept;
[[nodiscard]] Transcoded utf16BigToUtf8(const char* in, const char* inEnd, char* out, char* outEnd,
                                        Replacements& replacements) noexcept;

}  // namespace orvanta::strings
