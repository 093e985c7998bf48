#pragma once

#include <string_view>

#include <orvanta/strings/reader/text/MemoizedSearch.h>
#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/strings/reader/text/TextToken.h>

namespace orvanta::strings {

/// Moves over a piece of UTF-8 text: the white space and comments between tokens, and the tokens.
class TextScanner {
 public:
  /// The text must outlive the scanner.
  explicit TextScanner(std::string_view text) noexcept
      : begin_(text.data()),
        end_(text.data() + text.size()),
        stars_(begin_, end_),
        commentEnds_(begin_, end_),
        lineEnds_(begin_, end_),
        backslashes_(begin_, end_) {}

  [[nodiscard]] const char* begin() const noexcept { return begin_; }
  [[nodiscard]] const char* end() const noexcept { return end_; }

  /// Skips white space and comments. Stops at a comment that is never closed, and at one that
  /// contains the beginning of another comment, because the end of the first may be missing.
  [[nodiscard]] const char* skipIdle(const char* at) noexcept {
    while (at != end_ && isKind(*at, kBlank)) {
      ++at;
    }
    return at == end_ || (*at != '/' && !isKind(*at, kWide)) ? at : skipRest<false>(at);
  }

  /// The same, but stops only at a comment that is never closed.
  [[nodiscard]] const char* skipAllIdle(const char* at) noexcept { return skipRest<true>(at); }

  /// The token at `at`; none where none begins, or when its quote is not closed.
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

  /// Behind the comment that begins at `at`; null when it is never closed.
  [[nodiscard]] const char* skipComment(const char* at) noexcept {
    bool isNested = false;
    return skipComment(at, isNested);
  }

  /// The line break that ends the line of `at`, or the end of the text.
  [[nodiscard]] const char* lineEnd(const char* at) noexcept { return lineEnds_.first(at); }

 private:
  // `isNested` tells whether another comment seems to begin inside.
  [[nodiscard]] const char* skipComment(const char* at, bool& isNested) noexcept;

  [[nodiscard]] static const char* findStar(const char* from, const char* to) noexcept {
    return findCharacter('*', from, to);
  }
  [[nodiscard]] static const char* findCommentEnd(const char* from, const char* to) noexcept;
  [[nodiscard]] static const char* findLineEnd(const char* from, const char* to) noexcept;
  [[nodiscard]] static const char* findBackslash(const char* from, const char* to) noexcept {
    return findCharacter('\\', from, to);
  }

  template <bool kPassesNested>
  [[nodiscard]] const char* skipRest(const char* at) noexcept;
  template <bool kPassesNested>
  [[nodiscard]] const char* skipSlash(const char* at) noexcept;

  const char* begin_;
  const char* end_;
  MemoizedSearch<findStar, 1> stars_;
  MemoizedSearch<findCommentEnd, 2> commentEnds_;
  MemoizedSearch<findLineEnd, 3> lineEnds_;
  MemoizedSearch<findBackslash, 1> backslashes_;
};

}  // namespace orvanta::strings
