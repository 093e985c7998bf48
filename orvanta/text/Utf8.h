#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <orvanta/Export.h>

/// UTF-8 as the Unicode Standard defines it (section 3.9, table 3-7): no overlong forms, no
/// surrogates, nothing above U+10FFFF.
namespace orvanta::utf8 {

inline constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t codePoint;  ///< U+FFFD where the bytes are not valid.
  std::size_t length;  ///< Bytes taken; 0 only for an empty text.
  bool valid;
};

/// The first character of `text`. An invalid sequence gives U+FFFD and takes its maximal subpart,
/// so that n stray bytes never turn into fewer than one replacement.
[[nodiscard]] ORVANTA_EXPORT Decoded decode(std::string_view text) noexcept;

/// Appends one character; what is no Unicode scalar value is written as U+FFFD.
ORVANTA_EXPORT void append(std::string& out, char32_t codePoint);

/// True when every byte belongs to a valid sequence; looks at one character at a time, and is what
/// faster answers are held against.
[[nodiscard]] ORVANTA_EXPORT bool isValid(std::string_view text) noexcept;

}  // namespace orvanta::utf8
