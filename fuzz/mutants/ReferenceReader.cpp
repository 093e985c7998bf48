#include "ReferenceReader.h"

#include <algorithm>
#include <span>

#include <orvanta/text/Utf8.h>

namespace orvanta::fuzz {

namespace {

constexpr std::string_view kBlanks[] = {" ",      "\t",     "\n",     "\r",     "\v",    "\f",
                                        "\u0085", "\u00A0", "\u2028", "\u2029", "\uFEFF"};
constexpr std::string_view kLineEnds[] = {"\n", "\r", "\u2028", "\u2029"};
constexpr std::string_view kPlain =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_$/:.-";
constexpr std::string_view kNamedEscapes = "ntrabfv";
constexpr std::string_view kNamedCharacters = "\n\t\r\a\b\f\v";

struct Fault {};

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  Reading read() {
    Reading reading;
    try {
      skip();
      const bool inBraces = accept("{");
      skip();
      while (at_ < text_.size() && !(inBraces && rest().starts_with('}'))) {
        reading.statements.push_back(readStatement());
        skip();
      }
      if (inBraces) {
        expect("}");
        skip();
      }
      reading.isSound = at_ == text_.size();
    } catch (const Fault&) {
      reading.isSound = false;
    }
    return reading;
  }

 private:
  [[nodiscard]] std::string_view rest() const { return text_.substr(at_); }

  bool accept(std::string_view token) {
    const bool isThere = rest().starts_with(token);
    at_ += isThere ? token.size() : 0;
    return isThere;
  }

  void expect(std::string_view token) {
    if (!accept(token)) {
      throw Fault();
    }
  }

  bool acceptAny(std::span<const std::string_view> tokens) {
    return std::any_of(tokens.begin(), tokens.end(), [this](auto token) { return accept(token); });
  }

  void skip() {
    for (;;) {
      if (accept("//")) {
        while (at_ < text_.size() && !acceptAny(kLineEnds)) {
          ++at_;
        }
      } else if (accept("/*")) {
        while (!accept("*/")) {
          takeCharacter();
        }
      } else if (!acceptAny(kBlanks)) {
        return;
      }
    }
  }

  char takeCharacter() {
    if (at_ == text_.size()) {
      throw Fault();
    }
    return text_[at_++];
  }

  Statement readStatement() {
    Statement statement;
    statement.begin = at_;
    statement.isQuoted = rest().starts_with('"') || rest().starts_with('\'');
    statement.key = readText();
    statement.value = statement.key;
    statement.keyEnd = at_;
    skip();
    if (accept("=")) {
      skip();
      statement.isText = !isAtOther();
      statement.value = readValue();
      skip();
    }
    expect(";");
    statement.end = at_;
    return statement;
  }

  std::string readText() {
    std::string text;
    if (accept("\"") || accept("'")) {
      const char quote = text_[at_ - 1];
      for (char c = takeCharacter(); c != quote; c = takeCharacter()) {
        if (c == '\\') {
          readEscape(text);
        } else {
          text.push_back(c);
        }
      }
      return text;
    }
    while (at_ < text_.size() && kPlain.find(text_[at_]) != std::string_view::npos) {
      text.push_back(text_[at_++]);
    }
    if (text.empty()) {
      throw Fault();
    }
    return text;
  }

  // Does not handle lone surrogates, which no mutant contains.
  void readEscape(std::string& text) {
    const char c = takeCharacter();
    const std::size_t named = kNamedEscapes.find(c);
    if (named != std::string_view::npos) {
      text.push_back(kNamedCharacters[named]);
    } else if (c == 'U') {
      utf8::append(text, readNumber(16, 4));
    } else if (c >= '0' && c <= '7') {
      --at_;
      utf8::append(text, readNumber(8, 3));
    } else {
      text.push_back(c);
    }
  }

  char32_t readNumber(std::size_t base, int mostDigits) {
    constexpr std::string_view kDigits = "0123456789abcdef0123456789ABCDEF";
    char32_t number = 0;
    for (; mostDigits > 0 && at_ < text_.size(); --mostDigits, ++at_) {
      const std::size_t digit = kDigits.find(text_[at_]);
      if (digit == std::string_view::npos || digit % 16 >= base) {
        break;
      }
      number = number * static_cast<char32_t>(base) + static_cast<char32_t>(digit % 16);
    }
    return number;
  }

  // At data, an array or a dictionary.
  [[nodiscard]] bool isAtOther() const {
    return !rest().empty() && std::string_view("<({").find(text_[at_]) != std::string_view::npos;
  }

  std::string readValue() { return isAtOther() ? readOther() : readText(); }

  std::string readOther() {
    if (accept("<")) {
      while (!accept(">")) {
        if (std::string_view(" \t\r\n0123456789abcdefABCDEF").find(takeCharacter()) ==
            std::string_view::npos) {
          throw Fault();
        }
      }
    } else if (accept("(")) {
      for (skip(); !accept(")"); skip()) {
        static_cast<void>(readValue());
        skip();
        if (!rest().starts_with(')')) {
          expect(",");
        }
      }
    } else {
      expect("{");
      for (skip(); !accept("}"); skip()) {
        static_cast<void>(readStatement());
      }
    }
    return {};
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

Reading readByTheLetter(std::string_view text) {
  return Reader(text).read();
}

}  // namespace orvanta::fuzz
