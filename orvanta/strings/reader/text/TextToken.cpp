#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/strings/reader/text/TextToken.h>

namespace orvanta::strings {

namespace {

// The first quote from `close` on that is not escaped. `backslash` is the first backslash of the
// string, or null.
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

}  // namespace orvanta::strings
