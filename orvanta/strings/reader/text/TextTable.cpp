#include <memory>

#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/text/TextRecovery.h>
#include <orvanta/strings/reader/text/TextStatements.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/text/TextWindow.h>

namespace orvanta::strings {

namespace {

// Of a text that begins with something else than a statement, one part in this many must be
// statements, or they are taken to be there by chance. Of what begins as object notation does,
// which may hold any text between its quotes, more must be.
constexpr std::size_t kLeastPart = 16;
constexpr std::size_t kLeastPartOfObjects = 2;

constexpr const char* kNotATable = "this is no strings file";

// Where reading stands: an offset into the UTF-8 text, and that of the statement before it.
struct Progress {
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  std::size_t at = 0;
  std::size_t previous = kNone;
  bool done = false;
};

bool beginsMarkup(std::string_view text) noexcept {
  if (text.size() < 2 || text[0] != '<') {
    return false;
  }
  const char next = text[1];
  return next == '!' || next == '?' || next == '/' || (next >= 'a' && next <= 'z') ||
         (next >= 'A' && next <= 'Z');
}

// "[" or "{", then a quoted key and a colon.
bool beginsObjectNotation(std::string_view text, TextScanner& scanner) noexcept {
  const char* at = scanner.skipIdle(text.data());
  if (at == scanner.end() || (*at != '{' && *at != '[')) {
    return false;
  }
  if (*at == '[') {
    return true;
  }
  const TextToken key = scanner.readToken(scanner.skipIdle(at + 1));
  const char* sign = key.found() ? scanner.skipIdle(key.next) : scanner.end();
  return sign != scanner.end() && *sign == ':';
}

// Reads a text that is all there, from where `progress` stands.
class WholeText {
 public:
  WholeText(std::string_view text, TextStatements& statements, const ProblemCollector& problems)
      : text_(text),
        statements_(statements),
        scanner_(text),
        problems_(text.data(), problems),
        recovery_(text, scanner_, statements, problems_) {}

  bool read(Progress progress) {
    const char* at = text_.data() + progress.at;
    const char* previous =
        progress.previous == Progress::kNone ? nullptr : text_.data() + progress.previous;
    for (;;) {
      const std::size_t countBefore = statements_.count();
      at = statements_.read(scanner_, at);
      if (at == scanner_.end() || statements_.full()) {
        break;
      }
      if (statements_.count() != countBefore) {
        previous = statements_.last();
      }
      if (!recover(at, previous)) {
        return false;
      }
      previous = nullptr;
    }
    recovery_.finish();
    return isTable();
  }

 private:
  bool recover(const char*& at, const char* previous) {
    const bool isFirst = statements_.count() == 0 && !problems_.any();
    if (isFirst && beginsMarkup({at, scanner_.end()})) {
      problems_.add(at, kNotATable);
      return false;
    }
    at = recovery_.recover(at, previous);
    beginsBadly_ = beginsBadly_ || (isFirst && statements_.count() == 0);
    return true;
  }

  [[nodiscard]] bool isTable() noexcept {
    if (statements_.count() == 0) {
      return !problems_.any() || recovery_.sawOtherValue();
    }
    return !beginsBadly_ || text_.size() - recovery_.lostBytes() >= text_.size() / leastPart();
  }

  [[nodiscard]] std::size_t leastPart() noexcept {
    return beginsObjectNotation(text_, scanner_) ? kLeastPartOfObjects : kLeastPart;
  }

  std::string_view text_;
  TextStatements& statements_;
  TextScanner scanner_;
  TextProblems problems_;
  TextRecovery recovery_;
  bool beginsBadly_ = false;
};

// Reads sound statements out of a window that moves through the text; gives where that had to
// stop.
Progress readThroughWindow(EncodedText text, TextStatements& statements) {
  TextWindow window(text);
  Progress progress;
  for (;;) {
    const std::string_view lines = window.lines();
    const std::size_t countBefore = statements.count();
    TextScanner scanner(lines);
    const char* stop = statements.read(scanner, lines.data());
    const auto consumed = static_cast<std::size_t>(stop - lines.data());
    if (statements.count() != countBefore) {
      progress.previous =
          window.offset() + static_cast<std::size_t>(statements.last() - lines.data());
    }
    progress.at = window.offset() + consumed;
    progress.done = window.atEnd() && consumed == lines.size();
    if (window.atEnd() || !window.advance(consumed)) {
      return progress;
    }
  }
}

}  // namespace

bool readTextTable(EncodedText text, StringTableBuilder& table, const ProblemCollector& problems) {
  TextStatements statements(table);
  if (text.encoding == TextEncoding::kUtf8 && isValidUtf8(text.bytes)) {
    return WholeText(text.bytes, statements, problems).read({});
  }
  const Progress progress = readThroughWindow(text, statements);
  if (statements.full() ||
      (progress.done && statements.braces() != TextStatements::Braces::kOpen)) {
    return true;
  }
  const WholeUtf8 whole(text);
  return WholeText(whole.view(), statements, problems).read(progress);
}

}  // namespace orvanta::strings
