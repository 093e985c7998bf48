#include <orvanta/strings/reader/text/DamagedStatement.h>
#include <orvanta/strings/reader/text/TextCollection.h>

namespace orvanta::strings {

namespace {

constexpr const char* kControlCharacter = "a stray control character";
constexpr const char* kOpenComment = "a comment that is never closed; taken to end with its line";
constexpr const char* kStatementsInComment =
    "a comment holds statements and another comment's beginning; its end may be missing";

const char* skipBlanks(const char* at, const char* end) noexcept {
  while (at != end && isKind(*at, kBlank)) {
    ++at;
  }
  return at;
}

// Whether the line begins with a complete statement.
bool isLineStatement(const char* at, const char* end) noexcept {
  const TextToken key = readToken(skipBlanks(at, end), end);
  const char* const sign = key.found() ? skipBlanks(key.next, end) : end;
  if (sign == end || *sign != '=') {
    return false;
  }
  const TextToken value = readToken(skipBlanks(sign + 1, end), end);
  const char* const semicolon = value.found() ? skipBlanks(value.next, end) : end;
  return semicolon != end && *semicolon == ';';
}

// Whether the comment contains statements and, behind them, the beginning of another comment.
bool losesStatements(TextScanner& scanner, const char* begin, const char* end) {
  const char* const last = begin + std::string_view(begin, end).rfind("/*");
  for (const char* line = scanner.lineEnd(begin); line < last; line = scanner.lineEnd(line)) {
    line += lineBreakAt({line, last});
    if (isLineStatement(line, scanner.lineEnd(line))) {
      return true;
    }
  }
  return false;
}

const char* skipStray(TextScanner& scanner, const char* at, std::vector<Stray>& strays) {
  const char* const end = scanner.end();
  if (isKind(*at, kControl)) {
    strays.push_back({at, kControlCharacter});
    while (at != end && isKind(*at, kControl)) {
      ++at;
    }
  } else if (scanner.beginsComment(at)) {
    const char* const behind = scanner.skipComment(at);
    if (behind == nullptr) {
      strays.push_back({at, kOpenComment});
    } else if (losesStatements(scanner, at, behind)) {
      strays.push_back({at, kStatementsInComment});
    }
    at = behind == nullptr ? scanner.lineEnd(at) : behind;
  }
  return at;
}

void readValue(TextScanner& scanner, DamagedStatement& statement) {
  const char* const end = scanner.end();
  statement.value = skipIdleAndStrays(scanner, statement.sign + 1, statement.strays);
  statement.readTo = statement.value;
  if (statement.value == end || beginsCollection(*statement.value)) {
    return;
  }
  statement.valueToken = scanner.readToken(statement.value);
  if (!statement.valueToken.found()) {
    statement.readTo = isQuote(*statement.value) ? end : statement.value;
    return;
  }
  const std::size_t straysBefore = statement.strays.size();
  const char* const next = skipIdleAndStrays(scanner, statement.valueToken.next, statement.strays);
  statement.readTo = next;
  if (next != end && *next == ';') {
    statement.end = next + 1;
  } else {
    statement.strays.resize(straysBefore);
  }
}

}  // namespace

const char* skipIdleAndStrays(TextScanner& scanner, const char* at, std::vector<Stray>& strays) {
  for (;;) {
    at = scanner.skipIdle(at);
    if (at == scanner.end()) {
      return at;
    }
    const char* const before = at;
    at = skipStray(scanner, at, strays);
    if (at == before) {
      return at;
    }
  }
}

DamagedStatement readDamagedStatement(TextScanner& scanner, const char* at) {
  DamagedStatement statement;
  statement.begin = at;
  statement.readTo = at;
  statement.key = scanner.readToken(at);
  if (!statement.key.found()) {
    statement.readTo = isQuote(*at) ? scanner.end() : at;
    return statement;
  }
  statement.sign = skipIdleAndStrays(scanner, statement.key.next, statement.strays);
  statement.readTo = statement.sign;
  if (statement.sign == scanner.end()) {
    return statement;
  }
  if (*statement.sign == '=') {
    readValue(scanner, statement);
  } else if (*statement.sign == ';') {
    statement.valueToken = statement.key;
    statement.end = statement.sign + 1;
  }
  return statement;
}

}  // namespace orvanta::strings
