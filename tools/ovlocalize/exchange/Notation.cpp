#include "Notation.h"

#include <charconv>

#include <orvanta/text/HexDigit.h>
#include <orvanta/text/Utf8.h>

namespace ovlocalize {

namespace {

constexpr std::string_view kEscape = "\\U";
constexpr std::size_t kDigits = 4;

// The number of an escape at the front of the text; 0x10000 without one. Half a surrogate pair is
// no character.
unsigned escapeAt(std::string_view text) {
  constexpr unsigned kNone = 0x10000;
  if (text.size() < kEscape.size() + kDigits || !text.starts_with(kEscape)) {
    return kNone;
  }
  const char* const digits = text.data() + kEscape.size();
  unsigned number = kNone;
  const auto read = std::from_chars(digits, digits + kDigits, number, 16);
  return read.ptr == digits + kDigits && (number & 0xF800) != 0xD800 ? number : kNone;
}

bool mustBeWritten(char32_t character, bool isKey) {
  const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
  const bool mayStand = !isKey && (character == '\n' || character == '\t');
  return (isControl && !mayStand) || character == 0xFFFE || character == 0xFFFF;
}

std::string written(std::string_view text, bool isKey) {
  if (text.empty() || text == kEscape) {
    return text.empty() ? std::string(kEscape) : "\\U005CU";
  }
  std::string out;
  while (!text.empty()) {
    const auto next = orvanta::utf8::decode(text);
    if (mustBeWritten(next.codePoint, isKey) || escapeAt(text) <= 0xFFFF) {
      out += kEscape;
      for (int shift = 12; shift >= 0; shift -= 4) {
        out += orvanta::kHexadecimalDigits[(next.codePoint >> shift) & 0xF];
      }
    } else {
      out += text.substr(0, next.length);
    }
    text.remove_prefix(next.length);
  }
  return out;
}

}  // namespace

std::string inNotation(std::string_view text) {
  return written(text, false);
}

std::string keyInNotation(std::string_view key) {
  return written(key, true);
}

std::string fromNotation(std::string_view written) {
  if (written == kEscape) {
    return "";
  }
  std::string text;
  while (!written.empty()) {
    const unsigned character = escapeAt(written);
    if (character <= 0xFFFF) {
      orvanta::utf8::append(text, character);
    } else {
      text += written.front();
    }
    written.remove_prefix(character <= 0xFFFF ? kEscape.size() + kDigits : 1);
  }
  return text;
}

}  // namespace ovlocalize
