#include <algorithm>

#include <orvanta/strings/reader/text/TextCollection.h>
#include <orvanta/strings/reader/text/TextRecovery.h>

namespace orvanta::strings {

namespace {

constexpr const char* kStrayCharacter = "a stray control character";
constexpr const char* kOpenComment = "a comment that is never closed; taken to end with its line";
constexpr const char* kStraySemicolon = "a semicolon without a statement";
constexpr const char* kStrayBrace = "a stray brace";
constexpr const char* kBehindBrace = "text behind the closing brace";
constexpr const char* kMissingBrace = "the closing brace is missing";
constexpr const char* kNoKey = "no statement begins here; skipped";
constexpr const char* kNoSign = R"("=" or ";" is missing behind the key; statement skipped)";
constexpr const char* kNoValue = "the value is missing; statement skipped";
constexpr const char* kOtherValue = "the value is no text; statement skipped";
constexpr const char* kOpenCollection = "a value that is no text and does not end; skipped";
constexpr const char* kMissingSemicolon = "the semicolon is missing";
constexpr const char* kNoSemicolon = "\";\" is missing behind the value; statement skipped";
constexpr const char* kBareQuote = "a quote without a backslash inside a value; taken as text";
constexpr const char* kOpenString = "a string that is never closed; taken to end with its line";
constexpr const char* kEndlessString = "a string that is never closed; statement skipped";

TextToken rawText(const char* begin, const char* end) noexcept {
  return {begin, end, end, true};
}

}  // namespace

TextRecovery::TextRecovery(std::string_view text, TextScanner& scanner, TextStatements& statements,
                           TextProblems& problems)
    : scanner_(scanner),
      statements_(statements),
      problems_(problems),
      budget_(text.size()),
      landmarks_(scanner, budget_),
      end_(scanner.end()),
      readTo_(text.data()) {}

const char* TextRecovery::recover(const char* at, const char* previous) {
  strays_.clear();
  readTo_ = at;
  const char* next = recoverHere(at, previous);
  budget_.spend(next, readTo_);
  return budget_.isUsedUp() && next < readTo_ ? landmarks_.nextStart(readTo_) : next;
}

const char* TextRecovery::recoverHere(const char* at, const char* previous) {
  if (statements_.braces() == TextStatements::Braces::kClosed) {
    problems_.add(at, kBehindBrace);
    statements_.leaveBraces();
    return at;
  }
  const char* next = skipIdle(at);
  if (next != at) {
    reportStrays(next);
    return next;
  }
  if (*at == ';' || *at == '{' || *at == '}') {
    return recoverMark(at);
  }
  return recoverStatement({at, previous});
}

void TextRecovery::finish() {
  if (statements_.braces() == TextStatements::Braces::kOpen) {
    problems_.add(end_, kMissingBrace);
  }
}

const char* TextRecovery::recoverMark(const char* at) {
  problems_.add(at, *at == ';' ? kStraySemicolon : kStrayBrace);
  const char* next = at + 1;
  while (next != end_ && *next == *at) {
    ++next;
  }
  return next;
}

const char* TextRecovery::recoverStatement(Damaged statement) {
  statement.key = readToken(statement.begin);
  if (!statement.key.found()) {
    return giveUp(statement, statement.begin, isQuote(*statement.begin) ? kEndlessString : kNoKey);
  }
  const char* sign = skipIdle(statement.key.next);
  if (sign != end_ && *sign == ';') {
    reportStrays(sign);
    statements_.add(statement.key, statement.key);
    return sign + 1;
  }
  if (sign == end_ || *sign != '=') {
    return giveUp(statement, sign, kNoSign);
  }
  statement.value = skipIdle(sign + 1);
  return recoverValue(statement);
}

const char* TextRecovery::recoverValue(const Damaged& statement) {
  if (statement.value == end_) {
    return giveUp(statement, statement.value, kNoValue);
  }
  const char first = *statement.value;
  if (first == '<' || first == '(' || first == '{') {
    return passCollection(statement);
  }
  const TextToken value = readToken(statement.value);
  if (isQuote(first)) {
    return value.found() ? recoverString(statement, value) : recoverOpenString(statement, value);
  }
  return value.found() ? recoverPlain(statement, value)
                       : giveUp(statement, statement.value, kNoValue);
}

const char* TextRecovery::recoverPlain(const Damaged& statement, const TextToken& value) {
  const char* next = skipIdle(value.next);
  if (next != end_ && *next == ';') {
    reportStrays(next);
    statements_.add(statement.key, value);
    return next + 1;
  }
  if (next > scanner_.lineEnd(value.next) && landmarks_.isHead(next)) {
    reportStrays(value.next);
    problems_.add(value.next, kMissingSemicolon);
    statements_.add(statement.key, value);
    return value.next;
  }
  return giveUp(statement, value.next, kNoSemicolon);
}

const char* TextRecovery::recoverString(const Damaged& statement, const TextToken& value) {
  const std::size_t straysBefore = strays_.size();
  const char* next = skipIdle(value.next);
  if (next != end_ && *next == ';') {
    reportStrays(next);
    statements_.add(statement.key, value);
    return next + 1;
  }
  strays_.resize(straysBefore);
  if (isSemicolonMissing(value.next, next)) {
    reportStrays(value.next);
    problems_.add(value.next, kMissingSemicolon);
    statements_.add(statement.key, value);
    return value.next;
  }
  return recoverOpenString(statement, value);
}

bool TextRecovery::isSemicolonMissing(const char* valueEnd, const char* next) {
  if (next == end_) {
    return true;
  }
  const bool nextLine = next > scanner_.lineEnd(valueEnd);
  return landmarks_.isHead(next) && (nextLine || isQuote(*next) || *next == '}');
}

// The string is not closed where it should be: there is a quote too many, or one is missing. If
// `value` was found, it ends with the next quote, of whatever string that is.
const char* TextRecovery::recoverOpenString(const Damaged& statement, const TextToken& value) {
  const char* begin = statement.value + 1;
  const char* head = landmarks_.nextHead(begin);
  const char* close = landmarks_.quoteThatEndsLine(*statement.value, begin);
  if (close < head) {
    reportStrays(begin);
    problems_.add(value.found() ? std::min(value.end, close) : statement.value, kBareQuote);
    statements_.add(statement.key, rawText(begin, close));
    return std::find(close, end_, ';') + 1;
  }
  if (value.found() && value.next < head) {
    return giveUp(statement, value.next, kNoSemicolon);
  }
  return takeLine(statement, head);
}

const char* TextRecovery::takeLine(const Damaged& statement, const char* head) {
  const char* begin = statement.value + 1;
  const char* contentEnd = landmarks_.contentEnd(begin, head);
  if (head == end_ && contentEnd != scanner_.lineEnd(begin)) {
    return giveUp(statement, statement.value, kEndlessString);
  }
  const char* end = contentEnd;
  while (end != begin && isKind(end[-1], kBlank)) {
    --end;
  }
  if (end != begin && end[-1] == ';') {
    --end;
  }
  reportStrays(begin);
  problems_.add(statement.value, kOpenString);
  statements_.add(statement.key, rawText(begin, end));
  return contentEnd;
}

const char* TextRecovery::passCollection(const Damaged& statement) {
  const PassedCollection passed = budget_.isUsedUp()
                                      ? PassedCollection{statement.value, false}
                                      : passOverCollection(scanner_, statement.value);
  readTo_ = std::max(readTo_, passed.end);
  if (!passed.closed) {
    return giveUp(statement, statement.value, kOpenCollection);
  }
  reportStrays(statement.value);
  problems_.add(statement.value, kOtherValue);
  sawOtherValue_ = true;
  const char* next = scanner_.skipIdle(passed.end);
  return next != end_ && *next == ';' ? next + 1 : passed.end;
}

const char* TextRecovery::giveUp(const Damaged& statement, const char* at, const char* message) {
  const char* resume = statementInLine(statement.begin);
  if (resume == nullptr) {
    resume = extendPrevious(statement);
    if (resume != nullptr) {
      return resume;
    }
    resume = landmarks_.nextStart(statement.begin);
  }
  problems_.add(at <= resume ? at : statement.begin, message);
  lostBytes_ += static_cast<std::size_t>(resume - statement.begin);
  return resume;
}

// What is left of a value after a quote and a semicolon inside it: the statement before this one
// on the line ended too early. Null when that does not explain what stands there.
const char* TextRecovery::extendPrevious(const Damaged& statement) {
  if (statement.previous == nullptr) {
    return nullptr;
  }
  const TextToken key = readToken(statement.previous);
  const char* sign = scanner_.skipIdle(key.next);
  if (*sign != '=') {
    return nullptr;
  }
  const char* open = scanner_.skipIdle(sign + 1);
  const TextToken value = readToken(open);
  if (!isQuote(*open) || scanner_.lineEnd(value.next) < statement.begin) {
    return nullptr;
  }
  const char* close = landmarks_.quoteThatEndsLine(*open, statement.begin);
  if (close >= scanner_.lineEnd(statement.begin) ||
      std::find(statement.begin, close, '=') != close) {
    return nullptr;
  }
  problems_.add(value.end, kBareQuote);
  statements_.add(key, rawText(value.begin, close));
  return std::find(close, end_, ';') + 1;
}

const char* TextRecovery::statementInLine(const char* at) {
  const char* lineEnd = scanner_.lineEnd(at);
  while ((at = std::find(at, lineEnd, ';')) != lineEnd) {
    ++at;
    while (at != lineEnd && isKind(*at, kBlank)) {
      ++at;
    }
    if (at != lineEnd && isStatementInLine(at, lineEnd)) {
      return at;
    }
  }
  return nullptr;
}

bool TextRecovery::isStatementInLine(const char* at, const char* lineEnd) {
  if (budget_.isUsedUp()) {
    return false;
  }
  const TextToken key = strings::readToken(at, lineEnd);
  if (!key.found()) {
    budget_.spend(at, isQuote(*at) ? lineEnd : at);
    return false;
  }
  bool isWhole = isQuote(*at);
  const char* next = scanner_.skipIdleUpTo(key.next, lineEnd);
  if (next < lineEnd && *next == '=') {
    const char* begin = scanner_.skipIdleUpTo(next + 1, lineEnd);
    const TextToken value = begin < lineEnd ? strings::readToken(begin, lineEnd) : TextToken{};
    next = value.found() ? scanner_.skipIdleUpTo(value.next, lineEnd) : lineEnd;
    isWhole = true;
  }
  isWhole = isWhole && next < lineEnd && *next == ';';
  budget_.spend(at, isWhole ? at : next);
  return isWhole;
}

// Passes over stray characters and comments that are never closed, and takes note of them.
const char* TextRecovery::skipIdle(const char* at) {
  for (;;) {
    at = scanner_.skipIdle(at);
    readTo_ = std::max(readTo_, at);
    if (at == end_) {
      return at;
    }
    if (isKind(*at, kStray)) {
      strays_.push_back({at, kStrayCharacter});
      while (at != end_ && isKind(*at, kStray)) {
        ++at;
      }
    } else if (scanner_.beginsComment(at)) {
      strays_.push_back({at, kOpenComment});
      at = scanner_.lineEnd(at);
    } else {
      return at;
    }
  }
}

TextToken TextRecovery::readToken(const char* at) {
  const TextToken token = scanner_.readToken(at);
  readTo_ = std::max(readTo_, token.found() ? token.next : at);
  return token;
}

void TextRecovery::reportStrays(const char* before) {
  for (const Stray& stray : strays_) {
    if (stray.at < before) {
      problems_.add(stray.at, stray.message);
    }
  }
}

}  // namespace orvanta::strings
