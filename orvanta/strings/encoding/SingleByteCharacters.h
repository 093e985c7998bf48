#pragma once

namespace orvanta::strings {

/// The character of a byte in windows-1252, which is ISO-8859-1 outside of 0x80 to 0x9F; U+FFFD for
/// the five bytes that it leaves undefined.
[[nodiscard]] char32_t windows1252Character(unsigned char byte) noexcept;

}  // namespace orvanta::strings
