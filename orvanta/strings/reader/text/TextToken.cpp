#include <cstddef>
#include <cstring>

#include <orvanta/strings/encoding/NextStepCharacters.h>
#include <orvanta/strings/encoding/Utf8Output.h>
#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/strings/reader/text/TextToken.h>

namespace orvanta::strings {

namespace {

// The closing quote at or behind `close`, where `close` is the first of any after `backslash`.
const char* closingQuote(char quote, const char* backslash, const char* close,
                         const char* end) noexcept {
  while (backslash != nullptr) {
    if (end - backslash < 2) {
      return nullptr;
    }
    const char* at = backslash + 2;
    if (at > close) {
      close = findCharacter(quote, at, end);
      if (close == nullptr) {
        return nullptr;
      }
    }
    backslash = findCharacter('\\', at, close);
  }
  return close;
}

struct Number {
  char32_t value = 0;
  const char* next = nullptr;
};

int digitValue(char c) noexcept {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  if (c >= 'a' && c <= 'f') {
    return c - 'a' + 10;
  }
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 16;
}

Number readNumber(const char* at, const char* end, int base, int mostDigits) noexcept {
  Number number = {0, at};
  while (number.next != end && number.next - at < mostDigits && digitValue(*number.next) < base) {
    number.value = number.value * static_cast<char32_t>(base) +
                   static_cast<char32_t>(digitValue(*number.next));
    ++number.next;
  }
  return number;
}

// The unit of which the digits begin at `at`, joined with the one after it if the two are a pair of
// surrogates.
Number readUnits(const char* at, const char* end) noexcept {
  constexpr int kDigits = 4;
  const Number unit = readNumber(at, end, 16, kDigits);
  const bool isHigh = (unit.value & 0xFC00) == 0xD800;
  if (isHigh && end - unit.next > 2 && unit.next[0] == '\\' && unit.next[1] == 'U') {
    const Number low = readNumber(unit.next + 2, end, 16, kDigits);
    if ((low.value & 0xFC00) == 0xDC00) {
      return {0x10000 + ((unit.value - 0xD800) << 10) + (low.value - 0xDC00), low.next};
    }
  }
  return unit;
}

char simpleEscape(char c) noexcept {
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

// Resolves what follows a backslash; gives the end of it and moves `out` on.
const char* resolveEscape(const char* at, const char* end, char*& out) noexcept {
  if (*at == 'U') {
    const Number units = readUnits(at + 1, end);
    if (units.next != at + 1) {
      out = putUtf8(units.value, out);
      return units.next;
    }
  }
  const Number octal = readNumber(at, end, 8, 3);
  if (octal.next != at) {
    out = putUtf8(nextStepCharacter(octal.value), out);
    return octal.next;
  }
  *out++ = simpleEscape(*at);
  return at + 1;
}

}  // namespace

TextToken readQuoted(const char* open, const char* close, const char* backslash,
                     const char* end) noexcept {
  const bool escapes = close != nullptr && backslash < close;
  if (escapes) {
    close = closingQuote(*open, backslash, close, end);
  }
  return close == nullptr ? TextToken{} : TextToken{open + 1, close, close + 1, escapes};
}

TextToken readToken(const char* at, const char* end) noexcept {
  if (at == end) {
    return {};
  }
  if (isQuote(*at)) {
    const char* close = findCharacter(*at, at + 1, end);
    const char* backslash = close == nullptr ? nullptr : findCharacter('\\', at + 1, close);
    return readQuoted(at, close, backslash == nullptr ? end : backslash, end);
  }
  const char* begin = at;
  while (at != end && isKind(*at, kPlain)) {
    ++at;
  }
  return at == begin ? TextToken{} : TextToken{begin, at, at, false};
}

char* resolveEscapes(std::string_view raw, char* out) noexcept {
  const char* at = raw.data();
  const char* end = at + raw.size();
  while (at != end) {
    const char* backslash = findCharacter('\\', at, end);
    const char* stop = backslash == nullptr ? end : backslash;
    std::memcpy(out, at, static_cast<std::size_t>(stop - at));
    out += stop - at;
    at = stop;
    if (at != end && ++at != end) {
      at = resolveEscape(at, end, out);
    } else if (backslash != nullptr) {
      *out++ = '\\';
    }
  }
  return out;
}

}  // namespace orvanta::strings
