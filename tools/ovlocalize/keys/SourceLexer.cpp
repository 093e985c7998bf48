#include "SourceLexer.h"

#include <algorithm>
#include <array>
#include <cctype>

#include <orvanta/text/Utf8.h>

namespace ovlocalize {

namespace {

using Kind = SourceToken::Kind;

bool isWordStart(char c) noexcept {
  return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '$' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool isWordPart(char c) noexcept {
  return isWordStart(c) || std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool isQuote(char c) noexcept {
  return c == '"' || c == '\'' || c == '`';
}

bool isStringPrefix(std::string_view word) noexcept {
  static constexpr std::array<std::string_view, 9> kPrefixes = {"L",  "u",  "U",  "u8", "R",
                                                                "LR", "uR", "UR", "u8R"};
  return std::find(kPrefixes.begin(), kPrefixes.end(), word) != kPrefixes.end();
}

int digitOf(char c) noexcept {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

}  // namespace

void SourceLexer::advance() noexcept {
  if (at_ < source_.size()) {
    line_ += source_[at_] == '\n' ? 1U : 0U;
    ++at_;
  }
}

void SourceLexer::skipIdle() noexcept {
  while (at_ < source_.size()) {
    if (std::isspace(static_cast<unsigned char>(peek())) != 0) {
      advance();
    } else if (peek() == '/' && peek(1) == '/') {
      at_ = std::min(source_.find('\n', at_), source_.size());
    } else if (peek() == '/' && peek(1) == '*') {
      const std::size_t close = source_.find("*/", at_ + 2);
      const std::size_t end = close == std::string_view::npos ? source_.size() : close + 2;
      while (at_ < end) {
        advance();
      }
    } else {
      break;
    }
  }
}

std::string_view SourceLexer::takeWord() noexcept {
  const std::size_t begin = at_;
  while (at_ < source_.size() && isWordPart(source_[at_])) {
    ++at_;
  }
  return source_.substr(begin, at_ - begin);
}

// The "_s" of "key"_s.
void SourceLexer::skipSuffix() noexcept {
  if (isWordStart(peek())) {
    (void)takeWord();
  }
}

SourceToken SourceLexer::next() {
  skipIdle();
  SourceToken token;
  token.line = line_;
  if (at_ == source_.size()) {
    return token;
  }
  const char first = peek();
  if (isQuote(first)) {
    readQuoted(token);
    return token;
  }
  if (isWordStart(first)) {
    const std::string_view word = takeWord();
    if (peek() == '"' && isStringPrefix(word)) {
      word.back() == 'R' ? readRaw(token) : readQuoted(token);
      return token;
    }
    token.kind = Kind::kIdentifier;
    token.text = word;
    return token;
  }
  if (std::isdigit(static_cast<unsigned char>(first)) != 0) {
    // "1'000" is one number: its quote opens no literal.
    while (isWordPart(peek()) || peek() == '.' || (peek() == '\'' && isWordPart(peek(1)))) {
      ++at_;
    }
    token.kind = Kind::kOther;
    return token;
  }
  token.kind = Kind::kPunctuation;
  token.text = first;
  advance();
  return token;
}

void SourceLexer::readQuoted(SourceToken& token) {
  const char quote = peek();
  token.kind = Kind::kString;
  advance();
  while (at_ < source_.size() && peek() != quote && (quote == '`' || peek() != '\n')) {
    if (peek() == '\\') {
      advance();
      readEscape(token.text);
      continue;
    }
    if (quote == '`' && peek() == '$' && peek(1) == '{') {
      token.kind = Kind::kOther;
    }
    token.text += peek();
    advance();
  }
  if (peek() == quote) {
    advance();
    skipSuffix();
  }
}

void SourceLexer::readRaw(SourceToken& token) {
  token.kind = Kind::kString;
  const std::size_t open = source_.find('(', at_);
  if (open == std::string_view::npos) {
    at_ = source_.size();
    return;
  }
  const std::string close = ")" + std::string(source_.substr(at_ + 1, open - at_ - 1)) + "\"";
  const std::size_t end = std::min(source_.find(close, open), source_.size());
  token.text = source_.substr(open + 1, end - std::min(open + 1, end));
  while (at_ < std::min(end + close.size(), source_.size())) {
    advance();
  }
  skipSuffix();
}

char32_t SourceLexer::readNumber(unsigned base, std::size_t most) noexcept {
  char32_t number = 0;
  for (std::size_t digits = 0; digits < most; ++digits) {
    const auto digit = static_cast<unsigned>(digitOf(peek()));
    if (digit >= base) {
      break;
    }
    number = number * base + digit;
    ++at_;
  }
  return number;
}

// Stands behind the backslash.
void SourceLexer::readEscape(std::string& text) {
  static constexpr std::string_view kNames = "abfnrtv";
  static constexpr std::string_view kCharacters = "\a\b\f\n\r\t\v";
  const char name = peek();
  if (name >= '0' && name <= '7') {
    orvanta::utf8::append(text, readNumber(8, 3));
    return;
  }
  advance();
  if (name == 'x') {
    orvanta::utf8::append(text, readNumber(16, 2));
  } else if (name == 'u' || name == 'U') {
    orvanta::utf8::append(text, readNumber(16, name == 'u' ? 4 : 8));
  } else if (const std::size_t index = kNames.find(name); index != std::string_view::npos) {
    text += kCharacters[index];
  } else if (name != '\n') {  // A line that goes on in the next one.
    text += name;
  }
}

}  // namespace ovlocalize
