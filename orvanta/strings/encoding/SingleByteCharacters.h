#pragma once

namespace orvanta::strings {

/// The character of a byte in windows-1252, which equals ISO-8859-1 except for 0x80 to 0x9F; U+FFFD
/// for the five bytes that are not assigned.
[[nodiscard]] char32_t windows1252Character(unsigned char byte) noexcept;

}  // namespace orvanta::strings
