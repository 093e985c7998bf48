#include <algorithm>
#include <iterator>

#include <orvanta/messages/pattern/TextDirection.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

using platform::LanguageDirection;

enum class Direction { none, digit, leftToRight, rightToLeft, control };

bool isBidiControl(char32_t character) noexcept {
  return character == 0x061C || character == 0x200E || character == 0x200F ||
         (character >= 0x202A && character <= 0x202E) ||
         (character >= 0x2066 && character <= 0x2069);
}

// The blocks that Unicode sets aside for scripts that run from right to left.
bool isRightToLeft(char32_t character) noexcept {
  return (character >= 0x0590 && character <= 0x08FF) ||
         (character >= 0xFB1D && character <= 0xFDFF) ||
         (character >= 0xFE70 && character <= 0xFEFF) ||
         (character >= 0x10800 && character <= 0x10FFF) ||
         (character >= 0x1E800 && character <= 0x1EFFF);
}

Direction directionOfAscii(char32_t character) noexcept {
  if (character >= '0' && character <= '9') {
    return Direction::digit;
  }
  const char32_t small = character | 0x20;
  return small >= 'a' && small <= 'z' ? Direction::leftToRight : Direction::none;
}

Direction directionOf(char32_t character) noexcept {
  if (character < 0x80) {
    return directionOfAscii(character);
  }
  if (isBidiControl(character)) {
    return Direction::control;
  }
  if (isRightToLeft(character)) {
    return Direction::rightToLeft;
  }
  const bool isPunctuation =
      (character < 0xC0 && character != 0xAA && character != 0xB5 && character != 0xBA) ||
      (character >= 0x2010 && character <= 0x205F);
  return isPunctuation ? Direction::none : Direction::leftToRight;
}

}  // namespace

bool mayDisturbDirection(std::string_view text, LanguageDirection message) noexcept {
  bool hasDigit = false;
  bool hasStrong = false;
  while (!text.empty()) {
    const utf8::Decoded next = utf8::decode(text);
    text.remove_prefix(next.length);
    switch (directionOf(next.codePoint)) {
      case Direction::none:
        break;
      case Direction::digit:
        hasDigit = true;
        break;
      case Direction::leftToRight:
        if (message != LanguageDirection::leftToRight) {
          return true;
        }
        hasStrong = true;
        break;
      case Direction::rightToLeft:
        if (message != LanguageDirection::rightToLeft) {
          return true;
        }
        hasStrong = true;
        break;
      case Direction::control:
        return true;
    }
  }
  // "10-12" alone is read from left to right.
  return hasDigit && !hasStrong && message != LanguageDirection::leftToRight;
}

}  // namespace orvanta
