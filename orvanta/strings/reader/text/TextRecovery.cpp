#include <algorithm>

#include <orvanta/strings/reader/text/StatementSalvage.h>
#include <orvanta/strings/reader/text/TextCollection.h>
#include <orvanta/strings/reader/text/TextRecovery.h>

namespace orvanta::strings {

namespace {

constexpr const char* kStraySemicolon = "a semicolon without a statement";
constexpr const char* kStrayBrace = "a stray brace";
constexpr const char* kBeforeBrace = "text before the opening brace";
constexpr const char* kBehindBrace = "text behind the closing brace";
constexpr const char* kMissingBrace = "the closing brace is missing";
constexpr const char* kOtherValue = "the value is no text; statement skipped";
constexpr const char* kOpenCollection = "a value that is no text and does not end; skipped";
constexpr const char* kLostStatement = "no sound statement; skipped";
constexpr const char* kLoneSurrogate = "half a surrogate pair; U+FFFD stands for it";
constexpr const char* kTooDamaged = "too much damage; what follows is read line by line";

}  // namespace

const char* TextRecovery::recover(const char* at, const char* previous) {
  const char* const next = recoverHere(at, previous);
  return budget_.isUsedUp() ? readByLine(next) : readInDoubt(next);
}

const char* TextRecovery::recoverHere(const char* at, const char* previous) {
  if (statements_.braces() == TextStatements::Braces::kClosed) {
    problems_.add(at, kBehindBrace);
    statements_.leaveBraces();
    return at;
  }
  std::vector<Stray> strays;
  const char* const next = skipIdleAndStrays(scanner_, at, strays);
  if (next != at) {
    reportStrays(strays, next);
    return next;
  }
  if (*at == ';' || *at == '{' || *at == '}') {
    return recoverMark(at);
  }
  if (const char* const brace = tableBrace(at); brace != nullptr) {
    problems_.add(at, kBeforeBrace);
    return brace;
  }
  const DamagedStatement statement = readDamagedStatement(scanner_, at);
  if (statement.end != nullptr) {
    reportStrays(statement.strays, statement.end);
    add(statement.key, statement.valueToken);
    return statement.end;
  }
  const bool isCollection = statement.value != nullptr && statement.value != scanner_.end() &&
                            beginsCollection(*statement.value);
  return isCollection ? passCollection(statement) : recoverStatement(statement, previous);
}

void TextRecovery::finish() {
  if (expectsBrace()) {
    problems_.add(scanner_.end(), kMissingBrace);
  }
}

const char* TextRecovery::recoverMark(const char* at) {
  problems_.add(at, *at == ';' ? kStraySemicolon : kStrayBrace);
  return std::find_if(at, scanner_.end(), [&](char c) { return c != *at; });
}

// The opening brace of a table in braces that stands behind other text in its line; null without
// one.
const char* TextRecovery::tableBrace(const char* at) {
  if (statements_.count() > 0 || statements_.braces() != TextStatements::Braces::kNone) {
    return nullptr;
  }
  const char* const brace = findCharacter('{', at, scanner_.lineEnd(at));
  if (brace == nullptr) {
    return nullptr;
  }
  const PassedCollection table = passOverCollection(scanner_, brace);
  budget_.spend(brace, table.end);
  return table.isClosed && scanner_.skipAllIdle(table.end) == scanner_.end() ? brace : nullptr;
}

const char* TextRecovery::recoverStatement(const DamagedStatement& statement,
                                           const char* previous) {
  const char* const end = nextStatement(statement.begin, statement);
  // Charged twice: the reader that stopped here has read the same text before.
  budget_.spend(end, statement.readTo);
  budget_.spend(end, statement.readTo);
  if (budget_.isUsedUp()) {
    return scanner_.lineEnd(statement.begin);
  }
  const Salvage saved = salvage(scanner_, budget_, statement, end);
  if (saved.value.found() && !isWholeText(statement, end)) {
    reportStrays(statement.strays, saved.at);
    problems_.add(saved.at, saved.message);
    add(statement.key, saved.value);
  } else if (!extendPrevious(statement.begin, end, previous)) {
    problems_.add(saved.at, saved.message);
    lose(statement.begin, end, saved.at);
  }
  return end;
}

// Whether the text consists of two words and "=" alone. Such a text may be anything, for example
// the answer of a server.
bool TextRecovery::isWholeText(const DamagedStatement& statement, const char* end) const noexcept {
  return end == scanner_.end() && statements_.count() == 0 && !isQuote(*statement.begin) &&
         statement.value != nullptr && !isQuote(*statement.value);
}

// Handles a value with a quote and a semicolon inside: the previous statement was taken to end
// there, and the rest of its value follows in the same line. False when the text is not the rest of
// a value.
bool TextRecovery::extendPrevious(const char* begin, const char* end, const char* previous) {
  const char* const lineEnd = scanner_.lineEnd(begin);
  if (previous == nullptr || end < lineEnd) {
    return false;
  }
  const DamagedStatement statement = readDamagedStatement(scanner_, previous);
  if (statement.value == nullptr || !isQuote(*statement.value) ||
      scanner_.lineEnd(statement.valueToken.next) < begin) {
    return false;
  }
  const std::string_view line(begin, lineEnd);
  const std::string_view remainder = line.substr(0, line.rfind(*statement.value));
  const bool isText = remainder.size() < line.size() &&
                      std::any_of(remainder.begin(), remainder.end(), isWordCharacter) &&
                      remainder.find_first_of("='\"") == std::string_view::npos;
  if (!isText) {
    return false;
  }
  const char* const close = begin + remainder.size();
  const char* const semicolon = scanner_.skipAllIdle(close + 1);
  if (semicolon >= lineEnd || *semicolon != ';' || scanner_.skipAllIdle(semicolon + 1) < end) {
    return false;
  }
  problems_.add(statement.valueToken.end, kBareQuote);
  add(statement.key, {statement.value + 1, close, close + 1, true});
  return true;
}

const char* TextRecovery::passCollection(const DamagedStatement& statement) {
  const PassedCollection passed = passOverCollection(scanner_, statement.value);
  if (finder_.lacksEnd(passed, expectsBrace())) {
    problems_.add(statement.value, kOpenCollection);
    budget_.spend(statement.value, passed.end);
    const char* const end = nextBesideCollection(statement.value, statement);
    doubt_ = *statement.value == '<' ? doubt_ : Doubt::kUntilBrace;
    lose(statement.begin, end, statement.value);
    return end;
  }
  reportStrays(statement.strays, statement.value);
  problems_.add(statement.value, kOtherValue);
  sawOtherValue_ = true;
  const char* const next = scanner_.skipAllIdle(passed.end);
  if (next == scanner_.end() || *next == ';') {
    return next == scanner_.end() ? next : next + 1;
  }
  return nextBesideCollection(passed.end - 1, statement);
}

// Where to continue behind a collection whose end is missing or misplaced. When its statement began
// a line: at the next statement that begins a line and is not indented further, because one that is
// may be part of the collection. When there is none: at any statement, unless the collection was
// opened at the end of its line.
const char* TextRecovery::nextBesideCollection(const char* from,
                                               const DamagedStatement& statement) {
  const char* const first = nextStatement(from, statement);
  const std::optional<std::size_t> before = indentation(statement.begin);
  if (!before) {
    return first;
  }
  const char* next = first;
  while (next != scanner_.end()) {
    const std::optional<std::size_t> after = indentation(next);
    if (after && *after <= *before) {
      return next;
    }
    next = finder_.next(next, statement, expectsBrace()).at;
  }
  const bool isLastInLine =
      scanner_.skipAllIdle(statement.value + 1) >= scanner_.lineEnd(statement.value);
  return isLastInLine || budget_.isUsedUp() ? next : first;
}

// Finds where to continue behind a damaged statement, and sets `doubt_` accordingly.
const char* TextRecovery::nextStatement(const char* from, const DamagedStatement& statement) {
  const StatementStart next = finder_.next(from, statement, expectsBrace());
  if (next.at == scanner_.end() || doubt_ == Doubt::kUntilBrace) {
    return next.at;
  }
  const std::optional<std::size_t> before = indentation(statement.begin);
  const std::optional<std::size_t> after = indentation(next.at);
  if (before && after && *after > *before) {
    doubt_ = Doubt::kWhileIndented;
    doubtIndentation_ = *before;
  } else if (!next.isCertain && doubt_ == Doubt::kNone) {
    doubt_ = Doubt::kOneStatement;
  }
  return next.at;
}

// Reads statements tentatively as long as they may belong to a lost one.
const char* TextRecovery::readInDoubt(const char* at) {
  while (doubt_ != Doubt::kNone) {
    at = scanner_.skipIdle(at);
    if (at == scanner_.end() || endsDoubt(at)) {
      break;
    }
    const char* const next = statements_.readTentatively(scanner_, at);
    if (next == nullptr) {
      break;
    }
    at = next;
    doubt_ = doubt_ == Doubt::kOneStatement ? Doubt::kNone : doubt_;
  }
  return at;
}

bool TextRecovery::endsDoubt(const char* at) {
  bool ends = false;
  if (doubt_ == Doubt::kWhileIndented) {
    const std::optional<std::size_t> blanks = indentation(at);
    ends = blanks && *blanks <= doubtIndentation_;
  } else if (doubt_ == Doubt::kUntilBrace) {
    ends = *at == '}';
  }
  doubt_ = ends ? Doubt::kNone : doubt_;
  return ends;
}

// Reads each line on its own, up to its first damage. Needs no look-ahead.
const char* TextRecovery::readByLine(const char* at) {
  const char* const end = scanner_.end();
  problems_.add(at, kTooDamaged);
  while (at != end && !statements_.full()) {
    const char* const lineEnd = scanner_.lineEnd(at);
    TextScanner line(std::string_view(at, lineEnd));
    const char* const stop = statements_.read(line, at);
    lose(stop, lineEnd, lineEnd);
    at = lineEnd + lineBreakAt({lineEnd, end});
  }
  return end;
}

// The number of blanks before `at` in its line; absent when something else stands there.
std::optional<std::size_t> TextRecovery::indentation(const char* at) noexcept {
  const char* blank = at;
  while (blank != scanner_.begin() && (blank[-1] == ' ' || blank[-1] == '\t')) {
    --blank;
  }
  budget_.spend(blank, at);
  const bool isFirst = blank == scanner_.begin() || isKind(blank[-1], kLineBreak);
  return isFirst ? std::optional(static_cast<std::size_t>(at - blank)) : std::nullopt;
}

void TextRecovery::add(const TextToken& key, const TextToken& value) {
  if (!statements_.add(key, value)) {
    problems_.add(value.end, kLoneSurrogate, TableProblem::Kind::characters);
  }
}

void TextRecovery::reportStrays(const std::vector<Stray>& strays, const char* before) {
  for (const Stray& stray : strays) {
    if (stray.at < before) {
      problems_.add(stray.at, stray.message);
    }
  }
}

// Counts lost text and reports each line in it that begins with a string, because that was meant to
// be a statement. `reported` is the place of the problem that was reported for the first one.
void TextRecovery::lose(const char* begin, const char* end, const char* reported) {
  for (const char* line = scanner_.lineEnd(begin); line < end; line = scanner_.lineEnd(line)) {
    line = scanner_.skipAllIdle(line);
    if (line < end && line > reported && isQuote(*line) &&
        strings::readToken(line, scanner_.lineEnd(line)).found()) {
      problems_.add(line, kLostStatement);
    }
  }
  loss_.bytes += static_cast<std::size_t>(end - begin);
  for (std::string_view rest(begin, end); !rest.empty(); rest.remove_prefix(1)) {
    loss_.noise += isKind(rest[0], kControl) || rest.starts_with("\uFFFD") ? 1 : 0;
  }
}

}  // namespace orvanta::strings
