#pragma once

#include <array>

#include <orvanta/strings/reader/text/LookAheadBudget.h>
#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// Where, in damaged text, a reader may find its way again.
///
/// Every search remembers its last answer: damage that makes a reader look far ahead from each of
/// many places costs one look. All pointers are into the scanner's text.
class TextLandmarks {
 public:
  /// `budget` outlives this.
  TextLandmarks(TextScanner& scanner, LookAheadBudget& budget) noexcept
      : scanner_(scanner), budget_(budget) {}

  /// The beginning of the first statement behind the line of `at`: a line that goes
  /// `key =` and has a value begin, `"key";`, or `}`. The end of the text when there is none.
  [[nodiscard]] const char* nextHead(const char* at) noexcept;

  /// The first line behind that of `at` with which a statement may be meant to begin: a head, or
  /// anything that begins with a quote. The end of the text when there is none.
  [[nodiscard]] const char* nextStart(const char* at) noexcept;

  /// The closing quote of the first `";` at or behind `at` that ends a line. One with a backslash
  /// before it counts if a statement follows. The end of the text when there is none.
  [[nodiscard]] const char* quoteThatEndsLine(char quote, const char* at) noexcept;

  /// The end of the last line, from that of `at` on, that is neither blank nor comment and stands
  /// before `limit`.
  [[nodiscard]] const char* contentEnd(const char* at, const char* limit) noexcept;

  /// True when a statement begins at `at`, as far as its line tells.
  [[nodiscard]] bool isHead(const char* at) noexcept;

  /// True when white space and comments are all from `at` to the end of its line.
  [[nodiscard]] bool isRestIdle(const char* at) noexcept;

 private:
  // Good for every search that begins in [from, found).
  struct Answer {
    const char* from = nullptr;
    const char* found = nullptr;

    [[nodiscard]] bool covers(const char* at) const noexcept {
      return from != nullptr && at >= from && at < found;
    }
  };

  [[nodiscard]] const char* firstBehindLine(const char* at) noexcept;
  [[nodiscard]] bool endsLine(const char* quote) noexcept;
  [[nodiscard]] bool endsValue(const char* quote, const char* begin) noexcept;

  TextScanner& scanner_;
  LookAheadBudget& budget_;
  Answer head_;
  std::array<Answer, 2> quotes_;
};

}  // namespace orvanta::strings
