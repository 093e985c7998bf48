#include <orvanta/strings/reader/text/StatementFinder.h>

namespace orvanta::strings {

namespace {

// Keys in single quotes are recognised only at the beginning of lines: within a line a single quote
// is an apostrophe.
constexpr char kKeyQuote = '"';

}  // namespace

StatementStart StatementFinder::next(const char* from, const DamagedStatement& damaged,
                                     bool inBraces) {
  Passed passed = {damaged, inBraces};
  const char* const end = scanner_.end();
  for (const char* at = from; at != end && !budget_.isUsedUp(); at = pass(at, passed)) {
    if (const std::size_t lineBreak = lineBreakAt({at, end}); lineBreak > 0) {
      at = scanner_.skipAllIdle(at + lineBreak);
      if (at == end) {
        break;
      }
      if (beginsLine(at, passed)) {
        return {at, !isKind(*at, kPlain) || passed.hasPlainKey() || !passed.isInString};
      }
    } else if (at != from && beginsWithinLine(at, passed)) {
      return {at, !passed.anyWord || (passed.last == ';' && !passed.isInString)};
    }
  }
  return {end, true};
}

// Passes over one character, an escaped quote or backslash, or a collection that is closed.
const char* StatementFinder::pass(const char* at, Passed& passed) {
  const char c = *at;
  if (!passed.isInString && (c == '(' || c == '{') && at >= passed.openTo) {
    const PassedCollection collection = passOverCollection(scanner_, at);
    if (!lacksEnd(collection, passed.inBraces)) {
      passed.last = collection.end[-1];
      return collection.end;
    }
    passed.openTo = collection.end;
  }
  if (c == kKeyQuote) {
    passed.anyQuote = true;
    passed.isInString = !passed.isInString;
  }
  passed.anyWord = passed.anyWord || isWordCharacter(c);
  if (!isKind(c, kBlank)) {
    passed.isBehindString = c == ';' && passed.last == kKeyQuote;
    passed.last = c;
  }
  ++at;
  const bool isEscape = c == '\\' && (passed.anyQuote || passed.anyWord) && at != scanner_.end() &&
                        (isQuote(*at) || *at == '\\');
  return isEscape ? at + 1 : at;
}

// In a table in braces, the brace that ends a collection must not be the table's own.
bool StatementFinder::lacksEnd(const PassedCollection& collection, bool inBraces) {
  return !collection.isClosed || (inBraces && isClosingBrace(collection.end - 1, scanner_.end()));
}

bool StatementFinder::beginsLine(const char* at, const Passed& passed) {
  if (*at == '}') {
    return passed.inBraces && isClosingBrace(at, scanner_.lineEnd(at));
  }
  return isQuote(*at) || passed.hasPlainKey() ? isHead(at, passed) : isWhole(at);
}

bool StatementFinder::beginsWithinLine(const char* at, const Passed& passed) {
  if (*at == '}') {
    return passed.inBraces && isClosingBrace(at, scanner_.end());
  }
  const char before = at[-1];
  const bool isBehindStatement = passed.last == ';' || !passed.anyWord;
  const bool isBehindSign = passed.damaged.value != nullptr && at > passed.damaged.value;
  if (*at == kKeyQuote) {
    const bool isBetweenStrings =
        passed.isInString ? before == kKeyQuote : !passed.anyQuote || !isWordCharacter(before);
    return (isBehindStatement || isBehindSign || isBetweenStrings) && isWhole(at);
  }
  const bool mayBePlain = !passed.isInString || passed.isBehindString || passed.hasPlainKey();
  const bool isBehindValue = isBehindSign && !passed.isInString;
  return isKind(*at, kPlain) && !isKind(before, kPlain | kWide) && mayBePlain &&
         (isBehindStatement || isBehindValue) && isWhole(at);
}

bool StatementFinder::isHead(const char* at, const Passed& passed) {
  const char* const lineEnd = scanner_.lineEnd(at);
  const TextToken key = readToken(at, lineEnd);
  if (!key.found() || key.begin == key.end) {
    return false;
  }
  const char* const sign = scanner_.skipAllIdle(key.next);
  bool isHead = false;
  if (sign != scanner_.end() && *sign == ';') {
    isHead = isQuote(*at) && passed.last == ';' && sign < lineEnd &&
             scanner_.skipAllIdle(sign + 1) >= lineEnd;
  } else if (sign != scanner_.end() && *sign == '=') {
    const char* const value = scanner_.skipAllIdle(sign + 1);
    isHead = isQuote(*at) || (value != scanner_.end() && isQuote(*value)) || isWhole(at);
  }
  budget_.spend(at, isHead ? at : sign);
  return isHead;
}

bool StatementFinder::isClosingBrace(const char* at, const char* end) {
  const char* const behind = scanner_.skipAllIdle(at + 1);
  budget_.spend(at, behind);
  return behind >= end;
}

bool StatementFinder::isWhole(const char* at) {
  if (budget_.isUsedUp()) {
    return false;
  }
  const char* readTo = at;
  const bool isWhole = readWhole(at, readTo);
  budget_.spend(at, isWhole ? at : readTo);
  return isWhole;
}

bool StatementFinder::readWhole(const char* at, const char*& readTo) {
  const char* const end = scanner_.end();
  const auto isAt = [&](char c) { return readTo != end && *readTo == c; };
  const TextToken key = readToken(at, scanner_.lineEnd(at));
  if (!key.found() || key.begin == key.end || *key.begin == '\\') {
    readTo = key.found() ? at : scanner_.lineEnd(at);
    return false;
  }
  readTo = scanner_.skipAllIdle(key.next);
  if (!isAt('=')) {
    return false;
  }
  readTo = scanner_.skipAllIdle(readTo + 1);
  if (readTo != end && beginsCollection(*readTo)) {
    const PassedCollection passed = passOverCollection(scanner_, readTo);
    readTo = passed.end;
    if (!passed.isClosed) {
      return false;
    }
  } else {
    const TextToken value = scanner_.readToken(readTo);
    if (!value.found()) {
      readTo = end;
      return false;
    }
    readTo = value.next;
  }
  readTo = scanner_.skipAllIdle(readTo);
  return isAt(';');
}

}  // namespace orvanta::strings
