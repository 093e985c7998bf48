#pragma once

namespace orvanta::strings {

inline constexpr unsigned kLongestUtf8 = 4;

/// Writes one character, at most `kLongestUtf8` bytes, and gives the end of it. What is no Unicode
/// scalar value is written as U+FFFD.
inline char* putUtf8(char32_t codePoint, char* out) noexcept {
  if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint < 0xE000)) {
    codePoint = 0xFFFD;
  }
  const auto tail = [codePoint](unsigned shift) {
    return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
  };
  if (codePoint < 0x80) {
    *out++ = static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    *out++ = static_cast<char>(0xC0 | (codePoint >> 6));
    *out++ = tail(0);
  } else if (codePoint < 0x10000) {
    *out++ = static_cast<char>(0xE0 | (codePoint >> 12));
    *out++ = tail(6);
    *out++ = tail(0);
  } else {
    *out++ = static_cast<char>(0xF0 | (codePoint >> 18));
    *out++ = tail(12);
    *out++ = tail(6);
    *out++ = tail(0);
  }
  return out;
}

}  // namespace orvanta::strings
