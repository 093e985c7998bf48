#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace orvanta::strings {

/// What a byte of a strings file may be outside of quotes and comments.
enum CharacterKind : unsigned char {
  kOther = 0,
  kBlank = 1,      ///< White space and line breaks of ASCII.
  kLineBreak = 2,  ///< Ends a line.
  kPlain = 4,      ///< Part of a token without quotes.
  kControl = 8,    ///< A control character without a meaning.
  kWide = 16,      ///< Part of a character beyond ASCII.
  kWideBreak =
      32,  ///< The first byte of U+2028 and U+2029, which end a line, and of other characters.
};

constexpr std::array<unsigned char, 256> makeCharacterKinds() {
  std::array<unsigned char, 256> kinds = {};
  for (unsigned code = 0; code < kinds.size(); ++code) {
    const bool letter = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
    const bool digit = code >= '0' && code <= '9';
    if (letter || digit) {
      kinds[code] = kPlain;
    } else if (code >= 0x80) {
      kinds[code] = kWide;
    } else if (code == '\n' || code == '\r') {
      kinds[code] = kBlank | kLineBreak;
    } else if (code == ' ' || code == '\t' || code == '\v' || code == '\f') {
      kinds[code] = kBlank;
    } else if (code < 0x20 || code == 0x7F) {
      kinds[code] = kControl;
    }
  }
  kinds[0xE2] |= kWideBreak;
  for (const char mark : {'_', '$', '/', ':', '.', '-'}) {
    kinds[static_cast<unsigned char>(mark)] = kPlain;
  }
  return kinds;
}

inline constexpr std::array<unsigned char, 256> kCharacterKinds = makeCharacterKinds();

[[nodiscard]] inline bool isKind(char c, unsigned kind) noexcept {
  return (kCharacterKinds[static_cast<unsigned char>(c)] & kind) != 0;
}

/// Whether `c` is part of a word. The marks of paths and addresses are not.
[[nodiscard]] inline bool isWordCharacter(char c) noexcept {
  return isKind(c, kPlain | kWide) && c != '.' && c != '-' && c != ':' && c != '/';
}

/// The size of the line break at the front of `text`; 0 when there is none.
///
///     LF    CR    CR LF    U+2028    U+2029
[[nodiscard]] inline std::size_t lineBreakAt(std::string_view text) noexcept {
  if (text.empty() || !isKind(text[0], kLineBreak | kWideBreak)) {
    return 0;
  }
  if (isKind(text[0], kLineBreak)) {
    return text.starts_with("\r\n") ? 2 : 1;
  }
  return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

}  // namespace orvanta::strings
