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

/// Finds the statement behind a damaged one, in one pass from the beginning of that.
///
/// At the beginning of a line a statement is told by its head: `"key" =`, or `"key";` behind a
/// semicolon, or the table's closing brace. A key without quotes may stand in any sentence: there
/// the statement must be whole, unless the damaged one has such a key, too. Heads may spread over
/// several lines.
///
/// Within a line a statement must be whole, with key, value and semicolon. It must follow a
/// semicolon, or else stand where no word runs into it and, as the quotes before it tell, outside
/// of a string or in a value that is never closed.
///
/// What is looked at in vain is charged to the budget. Once that is used up, nothing is found.
class StatementFinder {
 public:
  /// `budget` outlives this.
  StatementFinder(TextScanner& scanner, LookAheadBudget& budget) noexcept
      : scanner_(scanner), budget_(budget) {}

  /// The nearest statement behind `from`, which stands in `damaged`. `inBraces` tells whether the
  /// table's closing brace is expected.
  [[nodiscard]] StatementStart next(const char* from, const DamagedStatement& damaged,
                                    bool inBraces);

  /// Whether the end of a collection is missing, that of a table in braces aside.
  [[nodiscard]] bool lacksEnd(const PassedCollection& collection, bool inBraces);

 private:
  // What stands between `from` and the place that is looked at.
  struct Passed {
    const DamagedStatement& damaged;
    bool inBraces;
    bool anyWord = false;          // Anything but marks, quotes and blanks.
    bool anyQuote = false;         // Of the kind that begins keys.
    bool isInString = false;       // After an odd number of them.
    char last = '\0';              // The last character that is not blank.
    bool isBehindString = false;   // That is a semicolon, and the one before it a quote.
    const char* openTo = nullptr;  // How far a collection was read that does not end.

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
