#pragma once

#include <orvanta/platform/standard/strings/TextCharacters.h>
#include <orvanta/platform/standard/strings/TextToken.h>

namespace orvanta::platform::standard {

/// Moves over a piece of UTF-8 text: what stands between tokens, and the tokens.
class TextScanner {
 public:
  /// The text must outlive the scanner.
  explicit TextScanner(const char* end) noexcept : end_(end) {}

  [[nodiscard]] const char* end() const noexcept { return end_; }

  /// Behind the white space and the comments at `at`. Stops at a comment that is never closed.
  [[nodiscard]] const char* skipIdle(const char* at) noexcept {
    while (at != end_ && isKind(*at, kBlank)) {
      ++at;
    }
    return at == end_ || (*at != '/' && !isKind(*at, kWide)) ? at : skipRareIdle(at);
  }

  [[nodiscard]] TextToken readToken(const char* at) const noexcept {
    return standard::readToken(at, end_);
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

  const char* end_;
  // The last answer to where a comment ends, good for every search that begins in between:
  // a file of nothing but comment openings is searched once.
  const char* commentSearched_ = nullptr;
  const char* commentEnd_ = nullptr;
};

}  // namespace orvanta::platform::standard
