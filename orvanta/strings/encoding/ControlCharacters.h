#pragma once

#include <string>

#include <orvanta/text/HexDigit.h>

namespace orvanta::strings {

/// Whether the character belongs to C0 or C1, or is DEL.
[[nodiscard]] constexpr bool isControl(char32_t character) noexcept {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// Appends a control character as the escape sequence that a quoted string of a strings file has
/// for it: \n, \r, \t, else \U and four digits.
inline void appendEscapedControl(std::string& out, char32_t character) {
  switch (character) {
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      out += "\\U00";
      out += kHexadecimalDigits[character >> 4];
      out += kHexadecimalDigits[character & 0xF];
  }
}

}  // namespace orvanta::strings
