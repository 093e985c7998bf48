#include <cstring>

#include <orvanta/strings/encoding/Escapes.h>
#include <orvanta/strings/encoding/NextStepCharacters.h>
#include <orvanta/text/HexDigit.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

namespace {

constexpr char kUnitEscape = 'U';
constexpr unsigned kOctal = 8;
constexpr unsigned kHexadecimal = 16;
constexpr int kUnitDigits = 4;
constexpr int kOctalDigits = 3;

struct Number {
  char32_t value;
  const char* next;
};

Number readNumber(const char* at, const char* end, unsigned base, int mostDigits) noexcept {
  Number number = {0, at};
  while (number.next != end && number.next - at < mostDigits && digitValue(*number.next) < base) {
    number.value = number.value * base + digitValue(*number.next);
    ++number.next;
  }
  return number;
}

// The UTF-16 unit whose digits begin at `at`; the whole character when it and the next escape are a
// pair of surrogates.
Number readUnits(const char* at, const char* end) noexcept {
  const Number unit = readNumber(at, end, kHexadecimal, kUnitDigits);
  const bool isHigh = (unit.value & 0xFC00) == 0xD800;
  if (isHigh && end - unit.next > 2 && unit.next[0] == '\\' && unit.next[1] == kUnitEscape) {
    const Number low = readNumber(unit.next + 2, end, kHexadecimal, kUnitDigits);
    if ((low.value & 0xFC00) == 0xDC00) {
      return {0x10000 + ((unit.value - 0xD800) << 10) + (low.value - 0xDC00), low.next};
    }
  }
  return unit;
}

bool isSurrogate(char32_t unit) noexcept {
  return (unit & 0xFFFFF800) == 0xD800;
}

char namedEscape(char c) noexcept {
  switch (c) {
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'r':
      return '\r';
    case 'a':
      return '\a';
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'v':
      return '\v';
    default:
      return c;
  }
}

// Resolves the escape behind a backslash into `out` and returns the end of the escape.
const char* resolveEscape(const char* at, const char* end, ResolvedText& out) noexcept {
  if (*at == kUnitEscape) {
    const Number units = readUnits(at + 1, end);
    out.end = utf8::encode(units.value, out.end);
    out.hasLoneSurrogate = out.hasLoneSurrogate || isSurrogate(units.value);
    return units.next;
  }
  const Number octal = readNumber(at, end, kOctal, kOctalDigits);
  if (octal.next != at) {
    out.end = utf8::encode(nextStepCharacter(octal.value), out.end);
    return octal.next;
  }
  *out.end++ = namedEscape(*at);
  return at + 1;
}

}  // namespace

ResolvedText resolveEscapes(std::string_view raw, char* out) noexcept {
  const char* at = raw.data();
  const char* const end = at + raw.size();
  ResolvedText resolved = {out, false};
  while (at != end) {
    const void* const found = std::memchr(at, '\\', static_cast<std::size_t>(end - at));
    const char* const backslash = found == nullptr ? end : static_cast<const char*>(found);
    std::memcpy(resolved.end, at, static_cast<std::size_t>(backslash - at));
    resolved.end += backslash - at;
    at = backslash;
    if (end - at > 1) {
      at = resolveEscape(at + 1, end, resolved);
    } else if (at != end) {
      *resolved.end++ = '\\';
      ++at;
    }
  }
  return resolved;
}

bool isNumericEscape(char c) noexcept {
  return c == kUnitEscape || digitValue(c) < kOctal;
}

bool isEscapeForItself(char c) noexcept {
  return !isNumericEscape(c) && namedEscape(c) == c;
}

}  // namespace orvanta::strings
