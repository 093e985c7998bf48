#include <orvanta/strings/reader/text/NotATable.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/text/TextRecovery.h>
#include <orvanta/strings/reader/text/TextStatements.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/text/TextWindow.h>

namespace orvanta::strings {

namespace {

// A text that begins like object notation is a table only if at least one part in so many is
// statements: the quotes of object notation may contain anything.
constexpr std::size_t kLeastPartOfObjects = 2;

// A text that does not begin with a statement is no table if less than one part in so many is
// statements and at least one part in so many of the rest is control characters or invalid.
constexpr std::size_t kLeastPartOfNoise = 16;

constexpr const char* kNotATable = "this is no strings file";

// Reads a whole text, with recovery.
class WholeText {
 public:
  WholeText(const WholeUtf8& text, TextStatements& statements, const ProblemCollector& problems)
      : text_(text.view()),
        statements_(statements),
        scanner_(text_),
        problems_(text_.data(), problems),
        recovery_(text_, scanner_, statements, problems_) {
    problems_.addDamage(text);
  }

  bool read() {
    const char* at = text_.data();
    const char* previous = nullptr;
    for (;;) {
      const std::size_t countBefore = statements_.count();
      at = statements_.read(scanner_, at);
      if (at == scanner_.end() || statements_.full()) {
        break;
      }
      previous = statements_.count() != countBefore ? statements_.last() : previous;
      if (!recover(at, previous)) {
        return false;
      }
      previous = nullptr;
    }
    recovery_.finish();
    const bool isSound = !problems_.any();
    problems_.finish();
    return isSound || isTable();
  }

 private:
  bool recover(const char*& at, const char* previous) {
    const bool isFirst = statements_.count() == 0 && !problems_.any();
    if (isFirst && (beginsMarkup({at, scanner_.end()}) || beginsList(scanner_))) {
      problems_.add(at, kNotATable);
      return false;
    }
    at = recovery_.recover(at, previous);
    beginsBadly_ = beginsBadly_ || (isFirst && statements_.count() == 0);
    return true;
  }

  [[nodiscard]] bool isTable() {
    if (statements_.count() == 0) {
      return recovery_.sawOtherValue();
    }
    const TextRecovery::Loss& loss = recovery_.loss();
    const std::size_t kept = text_.size() - loss.bytes;
    if (!beginsBadly_) {
      return true;
    }
    if (beginsObjectNotation(scanner_)) {
      return kept >= text_.size() / kLeastPartOfObjects;
    }
    return kept >= text_.size() / kLeastPartOfNoise || loss.noise < loss.bytes / kLeastPartOfNoise;
  }

  std::string_view text_;
  TextStatements& statements_;
  TextScanner scanner_;
  TextProblems problems_;
  TextRecovery recovery_;
  bool beginsBadly_ = false;
};

}  // namespace

bool readSoundText(TextWindow& window, StringTableBuilder& table) {
  TextStatements statements(table);
  while (window.isSound()) {
    const std::string_view lines = window.lines();
    TextScanner scanner(lines);
    const char* const stop = statements.read(scanner, lines.data());
    if (statements.full()) {
      return false;
    }
    const auto consumed = static_cast<std::size_t>(stop - lines.data());
    if (window.atEnd()) {
      return consumed == lines.size() && statements.braces() != TextStatements::Braces::kOpen;
    }
    if (!window.advance(consumed)) {
      return false;
    }
  }
  return false;
}

bool readTextTable(EncodedText text, StringTableBuilder& table, const ProblemCollector& problems,
                   const StatementCollector& collector) {
  if (collector) {
    // A place is an address in the whole text.
    const WholeUtf8 whole(text);
    StatementPlaces places;
    const bool isTable = readTextTable(whole, table, problems, places);
    places.report(whole.view().data(), collector);
    return isTable;
  }
  TextStatements statements(table);
  const WholeUtf8 whole(text);
  return WholeText(whole, statements, problems).read();
}

bool readTextTable(const WholeUtf8& text, StringTableBuilder& table,
                   const ProblemCollector& problems, StatementPlaces& places) {
  TextStatements statements(table, &places);
  const bool isTable = WholeText(text, statements, problems).read();
  const bool isInBraces = statements.braces() == TextStatements::Braces::kClosed;
  const std::string_view whole = text.view();
  places.setTableEnd(isInBraces ? statements.closingBrace() : whole.data() + whole.size());
  return isTable;
}

}  // namespace orvanta::strings
