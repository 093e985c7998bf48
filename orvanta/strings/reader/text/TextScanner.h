#pragma once

#include <string_view>

#include <orvanta/strings/reader/text/RememberedSearch.h>
#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/strings/reader/text/TextToken.h>

namespace orvanta::strings {

/// Moves over a piece of UTF-8 text: what stands between tokens, and the tokens.
class TextScanner {
 public:
  /// The text must outlive the scanner.
  explicit TextScanner(std::string_view text) noexcept
      : end_(text.data() + text.size()),
        commentEnds_(text.data(), end_),
        lineEnds_(text.data(), end_),
        backslashes_(text.data(), end_) {}

  [[nodiscard]] const char* end() const noexcept { return end_; }

  /// Behind the white space and the comments at `at`. Stops at a comment that is never closed.
  [[nodiscard]] const char* skipIdle(const char* at) noexcept {
    while (at != end_ && isKind(*at, kBlank)) {
      ++at;
    }
    return at == end_ || (*at != '/' && !isKind(*at, kWide)) ? at : skipIdleUpTo(at, end_);
  }

  /// The same, but not on from `limit` or beyond: a comment may lead there, never further.
  [[nodiscard]] const char* skipIdleUpTo(const char* at, const char* limit) noexcept;

  /// The token at `at`, quoted or not; none where none begins, or a quote is not closed.
  [[nodiscard]] TextToken readToken(const char* at) noexcept {
    if (at == end_ || !isQuote(*at)) {
      return strings::readToken(at, end_);
    }
    const char* begin = at + 1;
    const char* close = findCharacter(*at, begin, end_);
    const char* backslash = backslashes_.first(begin);
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
  [[nodiscard]] const char* lineEnd(const char* at) noexcept { return lineEnds_.first(at); }

 private:
  [[nodiscard]] static const char* findCommentEnd(const char* from, const char* to) noexcept;
  [[nodiscard]] static const char* findLineEnd(const char* from, const char* to) noexcept;
  [[nodiscard]] static const char* findBackslash(const char* from, const char* to) noexcept {
    return findCharacter('\\', from, to);
  }

  const char* end_;
  RememberedSearch<findCommentEnd, 2> commentEnds_;
  RememberedSearch<findLineEnd> lineEnds_;
  RememberedSearch<findBackslash> backslashes_;
};

}  // namespace orvanta::strings
