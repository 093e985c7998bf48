#pragma once

#include <string_view>

#include <orvanta/platform/standard/strings/TextCharacters.h>
#include <orvanta/platform/standard/strings/TextToken.h>

namespace orvanta::platform::standard {

/// Moves over a piece of UTF-8 text: what stands between tokens, and the tokens.
class TextScanner {
 public:
  /// The text must outlive the scanner.
  explicit TextScanner(std::string_view text) noexcept
      : end_(text.data() + text.size()),
        commentSearched_(text.data()),
        commentEnd_(text.data()),
        backslashSearched_(text.data()),
        backslash_(backslashFrom(text.data())) {}

  [[nodiscard]] const char* end() const noexcept { return end_; }

  /// Behind the white space and the comments at `at`. Stops at a comment that is never closed.
  [[nodiscard]] const char* skipIdle(const char* at) noexcept {
    while (at != end_ && isKind(*at, kBlank)) {
      ++at;
    }
    return at == end_ || (*at != '/' && !isKind(*at, kWide)) ? at : skipRareIdle(at);
  }

  /// The token at `at`, quoted or not; none where none begins, or a quote is not closed.
  [[nodiscard]] TextToken readToken(const char* at) noexcept {
    if (at == end_ || !isQuote(*at)) {
      return standard::readToken(at, end_);
    }
    const char* begin = at + 1;
    const char* close = findCharacter(*at, begin, end_);
    const char* backslash = nextBackslash(begin);
    if (close != nullptr && close < backslash) {
      return {begin, close, close + 1, false};
    }
    return readQuoted(at, close, backslash, end_);
  }

  [[nodiscard]] bool beginsComment(const char* at) const noexcept {
    return end_ - at >= 2 && at[0] == '/' && at[1] == '*';
  }
  [[nodiscard]] bool beginsLineComment(const char* at) const noexcept {
    return end_ - at >= 2 && at[0] == '/' && at[1] == '/';
  }

  /// Behind the comment that begins at `at`; null when it is never closed.
  [[nodiscard]] const char* skipComment(const char* at) noexcept;

  /// The line break that ends the line of `at`, or the end of the text.
  [[nodiscard]] const char* lineEnd(const char* at) const noexcept;

 private:
  [[nodiscard]] const char* skipRareIdle(const char* at) noexcept;

  [[nodiscard]] const char* backslashFrom(const char* at) const noexcept {
    const char* found = findCharacter('\\', at, end_);
    return found == nullptr ? end_ : found;
  }
  [[nodiscard]] const char* nextBackslash(const char* at) noexcept {
    if (at < backslashSearched_ || at > backslash_) {
      searchBackslash(at);
    }
    return backslash_;
  }
  void searchBackslash(const char* at) noexcept;

  const char* end_;
  // The last answers to where a comment ends and where a backslash stands, good for every search
  // that begins in between: what is not there is searched for once.
  const char* commentSearched_;
  const char* commentEnd_;
  const char* backslashSearched_;
  const char* backslash_;
};

}  // namespace orvanta::platform::standard
