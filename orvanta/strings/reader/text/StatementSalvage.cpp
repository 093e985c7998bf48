#include <algorithm>

#include <orvanta/strings/reader/text/StatementSalvage.h>

namespace orvanta::strings {

namespace {

constexpr const char* kNoKey = "no statement begins here; skipped";
constexpr const char* kNoSign = R"("=" or ";" is missing behind the key; statement skipped)";
constexpr const char* kNoValue = "the value is missing; statement skipped";
constexpr const char* kMissingSemicolon = "the semicolon is missing";
constexpr const char* kNoSemicolon = "\";\" is missing behind the value; statement skipped";
constexpr const char* kOpenString = "a string that is never closed; taken to end with its line";
constexpr const char* kOpenKey = "a key that is never closed; statement skipped";

// The inside of a string, with its escapes.
TextToken rawText(const char* begin, const char* end) noexcept {
  return {begin, end, end, true};
}

Salvage lost(const char* at, const char* message) noexcept {
  return {{}, at, message};
}

class StringSalvage {
 public:
  StringSalvage(TextScanner& scanner, LookAheadBudget& budget, const DamagedStatement& statement,
                const char* end) noexcept
      : scanner_(scanner), budget_(budget), statement_(statement), end_(end) {}

  Salvage salvage() {
    const char* const begin = statement_.value + 1;
    const char quote = *statement_.value;
    bool isClosedBefore = false;
    for (const char* at = begin; at < end_ && !budget_.isUsedUp(); ++at) {
      const bool isEscape = *at == '\\' && at + 1 < end_;
      at += isEscape ? 1 : 0;
      if (*at != quote) {
        continue;
      }
      if (const char* const message = messageIfLast(at)) {
        return saveUpTo(at, isEscape ? kBareQuote : message);
      }
      isClosedBefore = isClosedBefore || !isEscape;
    }
    return isClosedBefore ? lost(statement_.valueToken.next, kNoSemicolon) : saveLine();
  }

 private:
  // What is wrong if the value ends with the quote at `at`; null when it does not.
  const char* messageIfLast(const char* at) {
    const char* const next = scanner_.skipAllIdle(at + 1);
    const bool hasSemicolon = next < end_ && *next == ';';
    const char* const behind = hasSemicolon ? scanner_.skipAllIdle(next + 1) : next;
    if (behind < end_) {
      budget_.spend(at, behind);
      return nullptr;
    }
    return hasSemicolon ? kBareQuote : kMissingSemicolon;
  }

  Salvage saveUpTo(const char* close, const char* message) const noexcept {
    const TextToken& token = statement_.valueToken;
    if (message == kMissingSemicolon && token.found() && token.end == close) {
      return {token, token.next, kMissingSemicolon};
    }
    const char* const at = token.found() ? std::min(token.end, close) : statement_.value;
    return {rawText(statement_.value + 1, close), at, kBareQuote};
  }

  Salvage saveLine() {
    const char* const begin = statement_.value + 1;
    const char* end = std::min(scanner_.lineEnd(begin), end_);
    while (end != begin && isKind(end[-1], kBlank)) {
      --end;
    }
    if (end != begin && end[-1] == ';') {
      --end;
    }
    return {rawText(begin, end), statement_.value, kOpenString};
  }

  TextScanner& scanner_;
  LookAheadBudget& budget_;
  const DamagedStatement& statement_;
  const char* end_;
};

Salvage salvagePlain(TextScanner& scanner, const DamagedStatement& statement, const char* end) {
  const TextToken& value = statement.valueToken;
  return scanner.skipAllIdle(value.next) >= end ? Salvage{value, value.next, kMissingSemicolon}
                                                : lost(value.next, kNoSemicolon);
}

}  // namespace

Salvage salvage(TextScanner& scanner, LookAheadBudget& budget, const DamagedStatement& statement,
                const char* end) {
  if (!statement.key.found()) {
    return lost(statement.begin, isQuote(*statement.begin) ? kOpenKey : kNoKey);
  }
  if (statement.key.next > end) {
    return lost(statement.begin, kOpenKey);
  }
  if (statement.value == nullptr || statement.sign >= end) {
    return lost(std::min(statement.sign, end), kNoSign);
  }
  if (statement.value >= end) {
    return lost(std::min(statement.sign + 1, end), kNoValue);
  }
  if (isQuote(*statement.value)) {
    return StringSalvage(scanner, budget, statement, end).salvage();
  }
  return statement.valueToken.found() ? salvagePlain(scanner, statement, end)
                                      : lost(statement.value, kNoValue);
}

}  // namespace orvanta::strings
