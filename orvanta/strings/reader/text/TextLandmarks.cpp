#include <cstddef>
#include <cstring>

#include <orvanta/strings/reader/text/TextLandmarks.h>

namespace orvanta::strings {

namespace {

bool isEscaped(const char* at, const char* begin) noexcept {
  const char* before = at;
  while (before != begin && before[-1] == '\\') {
    --before;
  }
  return (at - before) % 2 != 0;
}

bool beginsValue(char c) noexcept {
  return isQuote(c) || isKind(c, kPlain) || c == '<' || c == '(' || c == '{';
}

}  // namespace

const char* TextLandmarks::firstBehindLine(const char* at) noexcept {
  return scanner_.skipIdle(scanner_.lineEnd(at));
}

bool TextLandmarks::isHead(const char* at) noexcept {
  if (at == scanner_.end()) {
    return false;
  }
  if (*at == '}') {
    return isRestIdle(at + 1);
  }
  const char* end = scanner_.lineEnd(at);
  const TextToken key = readToken(at, end);
  if (!key.found()) {
    return false;
  }
  const char* sign = scanner_.skipIdleUpTo(key.next, end);
  if (sign >= end) {
    return false;
  }
  if (*sign == ';') {
    return isQuote(*at) && isRestIdle(sign + 1);
  }
  if (*sign != '=') {
    return false;
  }
  const char* value = scanner_.skipIdleUpTo(sign + 1, end);
  return value < end ? beginsValue(*value) : isQuote(*at);
}

bool TextLandmarks::isRestIdle(const char* at) noexcept {
  const char* end = scanner_.lineEnd(at);
  const char* stop = scanner_.skipIdleUpTo(at, end);
  return stop >= end || scanner_.beginsComment(stop);
}

const char* TextLandmarks::nextHead(const char* at) noexcept {
  if (!head_.covers(at)) {
    const char* line = firstBehindLine(at);
    while (line != scanner_.end() && !isHead(line)) {
      line = firstBehindLine(line);
    }
    head_ = {at, line};
  }
  return head_.found;
}

const char* TextLandmarks::nextStart(const char* at) noexcept {
  const char* line = firstBehindLine(at);
  while (line != scanner_.end() && !isQuote(*line) && !isHead(line)) {
    line = firstBehindLine(line);
  }
  return line;
}

bool TextLandmarks::endsLine(const char* quote) noexcept {
  const char* end = scanner_.lineEnd(quote);
  const char* at = quote + 1;
  while (at != end && isKind(*at, kBlank)) {
    ++at;
  }
  return at != end && *at == ';' && isRestIdle(at + 1);
}

bool TextLandmarks::endsValue(const char* quote, const char* begin) noexcept {
  if (!endsLine(quote)) {
    return false;
  }
  if (!isEscaped(quote, begin)) {
    return true;
  }
  if (budget_.isUsedUp()) {
    return false;
  }
  const char* next = firstBehindLine(quote);
  budget_.spend(quote, next);
  return next == scanner_.end() || isHead(next);
}

const char* TextLandmarks::quoteThatEndsLine(char quote, const char* at) noexcept {
  Answer& answer = quotes_[quote == '"' ? 0 : 1];
  if (!answer.covers(at)) {
    const char* found = at;
    while (found != scanner_.end() && (*found != quote || !endsValue(found, at))) {
      ++found;
    }
    answer = {at, found};
  }
  return answer.found;
}

const char* TextLandmarks::contentEnd(const char* at, const char* limit) noexcept {
  const char* end = scanner_.lineEnd(at);
  for (;;) {
    const char* line = scanner_.skipIdle(end);
    if (line >= limit) {
      return end;
    }
    end = scanner_.lineEnd(line);
  }
}

}  // namespace orvanta::strings
