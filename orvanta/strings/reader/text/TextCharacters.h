#pragma once

#include <array>

namespace orvanta::strings {

/// What single bytes of a strings file are outside of quotes and comments.
enum CharacterKind : unsigned char {
  kOther = 0,
  kBlank = 1,      ///< White space and line breaks of ASCII.
  kLineBreak = 2,  ///< Ends a line.
  kPlain = 4,      ///< May stand in a token without quotes.
  kStray = 8,      ///< A control character, which means nothing.
  kWide = 16,      ///< Part of a character beyond ASCII.
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
      kinds[code] = kStray;
    }
  }
  for (const char mark : {'_', '$', '/', ':', '.', '-'}) {
    kinds[static_cast<unsigned char>(mark)] = kPlain;
  }
  return kinds;
}

inline constexpr std::array<unsigned char, 256> kCharacterKinds = makeCharacterKinds();

[[nodiscard]] inline bool isKind(char c, unsigned kind) noexcept {
  return (kCharacterKinds[static_cast<unsigned char>(c)] & kind) != 0;
}

}  // namespace orvanta::strings
