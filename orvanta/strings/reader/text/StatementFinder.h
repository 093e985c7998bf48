#pragma once

#include <orvanta/strings/reader/text/DamagedStatement.h>
#include <orvanta/strings/reader/text/LookAheadBudget.h>
#include <orvanta/strings/reader/text/TextCollection.h>

namespace orvanta::strings {

/// Where a statement begins behind damage.
struct StatementStart {
  const char* at;  ///< The end of the text when there is none.
  bool
      isCertain;  ///< False when it may be part of a damaged text that only looks like a statement.
};

/// Finds the first statement behind a damaged one, in one pass from the beginning of the damaged
/// one.
///
/// At the beginning of a line a statement is recognised by its head: `"key" =`, or `"key";` behind
/// a semicolon, or the table's closing brace. A head may spread over several lines. A word and "="
/// may occur in any sentence: behind a key without quotes the statement must be complete, unless
/// the damaged statement has a key without quotes, too.
///
/// Within a line a statement must be complete, with key, value and semicolon. It must follow a
/// semicolon; or else no word may touch it, and by the number of quotes before it, it must stand
/// outside of a string or in a value that is never closed.
///
/// Text that is read without a result is charged to the budget. Once the budget is used up, nothing
/// is found.
class StatementFinder {
 public:
  /// `budget` outlives this.
  StatementFinder(TextScanner& scanner, LookAheadBudget& budget) noexcept
      : scanner_(scanner), budget_(budget) {}

  /// The nearest statement behind `from`, which stands in `damaged`. `inBraces` tells whether the
  /// table's closing brace is expected.
  [[nodiscard]] StatementStart next(const char* from, const DamagedStatement& damaged,
                                    bool inBraces);

  /// Whether the end of a collection is missing. The closing brace of a table in braces does not
  /// count as its end.
  [[nodiscard]] bool lacksEnd(const PassedCollection& collection, bool inBraces);

 private:
  // State of the pass: what stands between `from` and the current place.
  struct Passed {
    const DamagedStatement& damaged;
    bool inBraces;
    bool anyWord = false;          // Anything but marks, quotes and blanks.
    bool anyQuote = false;         // Of the kind that begins keys.
    bool isInString = false;       // After an odd number of them.
    char last = '\0';              // The last character that is not blank.
    bool isBehindString = false;   // `last` is a semicolon, and the character before it a quote.
    const char* openTo = nullptr;  // Up to here a collection without an end was read.

    [[nodiscard]] bool hasPlainKey() const noexcept { return isKind(*damaged.begin, kPlain); }
  };

  [[nodiscard]] bool beginsLine(const char* at, const Passed& passed);
  [[nodiscard]] bool beginsWithinLine(const char* at, const Passed& passed);
  [[nodiscard]] bool isHead(const char* at, const Passed& passed);
  [[nodiscard]] bool isWhole(const char* at);
  [[nodiscard]] bool readWhole(const char* at, const char*& readTo);
  [[nodiscard]] bool isClosingBrace(const char* at, const char* end);
  [[nodiscard]] const char* pass(const char* at, Passed& passed);

  TextScanner& scanner_;
  LookAheadBudget& budget_;
};

}  // namespace orvanta::strings
