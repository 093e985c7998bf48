#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <orvanta/Export.h>

/// UTF-8 as the Unicode Standard defines it (section 3.9, table 3-7): overlong forms, surrogates
/// and values above U+10FFFF are invalid. Thread-safe.
namespace orvanta::utf8 {

/// U+FFFD, which stands for what is no character.
inline constexpr char32_t kReplacement = 0xFFFD;

/// The length of the longest character in bytes.
inline constexpr std::size_t kLongest = 4;

/// What `decode` gives.
struct Decoded {
  char32_t codePoint;  ///< U+FFFD where the bytes are not valid.
  std::size_t length;  ///< Bytes taken; 0 only for an empty text.
  bool valid;          ///< False for invalid bytes and for an empty text.
};

/// The first character of `text`. An invalid sequence gives U+FFFD and takes its maximal subpart:
/// the longest start of a valid sequence, and one byte if it is none.
[[nodiscard]] ORVANTA_EXPORT Decoded decode(std::string_view text) noexcept;

/// Writes one character, at most `kLongest` bytes, and gives its end. A surrogate or a value
/// above U+10FFFF is written as U+FFFD.
inline char* encode(char32_t codePoint, char* out) noexcept {
  if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
    codePoint = kReplacement;
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

/// Appends one character. A surrogate or a value above U+10FFFF is written as U+FFFD.
ORVANTA_EXPORT void append(std::string& out, char32_t codePoint);

/// True when every byte belongs to a valid sequence. Scalar reference implementation; the tests'
/// oracle for the faster ones.
[[nodiscard]] ORVANTA_EXPORT bool isValid(std::string_view text) noexcept;

/// The number of UTF-16 code units that `text` has once it is decoded; a maximal subpart of an
/// invalid sequence counts as one.
[[nodiscard]] ORVANTA_EXPORT std::size_t utf16Length(std::string_view text) noexcept;

}  // namespace orvanta::utf8
