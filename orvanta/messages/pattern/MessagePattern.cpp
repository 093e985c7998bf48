#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>

#include <orvanta/messages/pattern/MessagePattern.h>
#include <orvanta/messages/pattern/PatternCharacters.h>

namespace orvanta {

namespace {

using Kind = PatternPart::Kind;

constexpr std::string_view kOffset = "offset:";
constexpr std::string_view kOther = "other";

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

bool isSpecial(char character) {
  return character == '\'' || character == '{' || character == '}' || character == '#';
}

// What may stand in a number.
bool isOfNumber(char character) {
  return isDigit(character) || std::string_view("+-.eE").find(character) != std::string_view::npos;
}

constexpr std::size_t kLongestNumber = 127;  // As for ICU.

// The whole text as a number, which has no "+" in front; absent when it is none, or is out of
// range.
#ifdef __cpp_lib_to_chars
std::optional<double> realNumber(std::string_view text) noexcept {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isWhole = error == std::errc() && end == text.data() + text.size();
  return isWhole ? std::optional(number) : std::nullopt;
}
#else
// The from_chars of libc++ knows no real numbers. strtod would take the point from the locale of
// the process, and accepts spaces, signs and hexadecimal digits.
std::optional<double> realNumber(std::string_view text) noexcept {
  static const locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
  std::array<char, kLongestNumber + 1> terminated{};
  std::copy(text.begin(), text.end(), terminated.begin());
  char* end = nullptr;
  errno = 0;
  const double number = ::strtod_l(terminated.data(), &end, locale);
  const bool isWhole = !text.empty() && text.front() != '+' &&
                       std::all_of(text.begin(), text.end(), isOfNumber) &&
                       end == terminated.data() + text.size();
  return isWhole && errno == 0 ? std::optional(number) : std::nullopt;
}
#endif

// `word` is in small letters.
bool equalsIgnoringCase(std::string_view text, std::string_view word) {
  return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char a, char b) {
    return a == b || (a >= 'A' && a <= 'Z' && a - 'A' + 'a' == b);
  });
}

std::optional<Kind> kindOfChoice(std::string_view type) {
  if (equalsIgnoringCase(type, "plural")) {
    return Kind::plural;
  }
  if (equalsIgnoringCase(type, "selectordinal")) {
    return Kind::selectOrdinal;
  }
  if (equalsIgnoringCase(type, "select")) {
    return Kind::select;
  }
  return std::nullopt;
}

// A position in a list: no zeros in front, and not above what ICU can count to.
bool isArgumentNumber(std::string_view digits) {
  return digits.size() <= 5 && (digits == "0" || digits.front() != '0') &&
         (digits.size() < 5 || digits <= "32767");
}

// Each parsing function reads from `at_`, leaves `at_` behind what it read, and gives false after
// an error.
class Parser {
 public:
  Parser(std::string_view pattern, PatternParts& parts) noexcept
      : pattern_(pattern), parts_(parts) {}

  std::optional<PatternError> parse() {
    parts_.clear();
    if (pattern_.size() > std::numeric_limits<std::uint32_t>::max()) {
      fail(0, "the message is too long");
    } else {
      static_cast<void>(parseMessage(0, false));
    }
    return error_;
  }

 private:
  bool fail(std::size_t position, std::string_view reason) {
    error_ = PatternError{position, reason};
    return false;
  }

  [[nodiscard]] bool isAtEnd() const noexcept { return at_ == pattern_.size(); }
  [[nodiscard]] bool isAt(char character) const noexcept {
    return at_ < pattern_.size() && pattern_[at_] == character;
  }

  // Up to the next character that may be more than itself in a message.
  void skipLiteral() {
    while (at_ < pattern_.size() && !isSpecial(pattern_[at_])) {
      ++at_;
    }
  }

  void skipWhiteSpace() { at_ = skipPatternWhiteSpace(pattern_, at_); }

  std::size_t add(Kind kind, std::size_t begin, std::size_t end) {
    const std::size_t index = parts_.size();
    parts_.push_back({kind, static_cast<std::uint32_t>(begin),
                      static_cast<std::uint32_t>(end - begin),
                      static_cast<std::uint32_t>(index + 1)});
    return index;
  }

  void addText(std::size_t begin, std::size_t end) {
    if (begin < end) {
      add(Kind::text, begin, end);
    }
  }

  // All that was added since belongs to the part at `index`.
  void close(std::size_t index) { parts_[index].next = static_cast<std::uint32_t>(parts_.size()); }

  // Up to the end of the pattern, or in a branch behind its "}".
  bool parseMessage(int nesting, bool hasNumber) {
    std::size_t literal = at_;
    for (;;) {
      skipLiteral();
      if (isAtEnd()) {
        break;
      }
      const char character = pattern_[at_];
      if (character == '\'') {
        literal = parseApostrophe(literal, hasNumber);
      } else if (character == '{') {
        addText(literal, at_);
        if (!parseArgument(nesting)) {
          return false;
        }
        literal = at_;
      } else if (character == '#' && hasNumber) {
        addText(literal, at_);
        add(Kind::number, at_, at_ + 1);
        literal = ++at_;
      } else if (character == '}' && nesting > 0) {
        addText(literal, at_++);
        return true;
      } else {
        ++at_;
      }
    }
    addText(literal, at_);
    return nesting == 0 || fail(at_, "a { has no }");
  }

  // Gives where the literal text goes on that began at `literal`.
  std::size_t parseApostrophe(std::size_t literal, bool hasNumber) {
    const char behind = at_ + 1 < pattern_.size() ? pattern_[at_ + 1] : '\0';
    if (behind == '\'') {
      addText(literal, at_ + 1);
      return at_ += 2;
    }
    if (behind != '{' && behind != '}' && (behind != '#' || !hasNumber)) {
      ++at_;
      return literal;
    }
    addText(literal, at_);
    literal = at_ + 1;
    std::size_t search = at_ + 2;
    while ((at_ = pattern_.find('\'', search)) != std::string_view::npos) {
      const bool isDoubled = at_ + 1 < pattern_.size() && pattern_[at_ + 1] == '\'';
      addText(literal, isDoubled ? at_ + 1 : at_);
      if (!isDoubled) {
        return ++at_;
      }
      literal = search = at_ + 2;
    }
    at_ = pattern_.size();
    return literal;
  }

  bool parseArgument(int nesting) {
    ++at_;
    skipWhiteSpace();
    const std::size_t name = at_;
    at_ = skipPatternIdentifier(pattern_, at_);
    const std::size_t nameEnd = at_;
    if (!checkName(name, nameEnd)) {
      return false;
    }
    skipWhiteSpace();
    if (isAt('}')) {
      ++at_;
      add(Kind::argument, name, nameEnd);
      return true;
    }
    if (!isAt(',')) {
      return fail(at_, isAtEnd() ? "a { has no }" : "an argument's name ends with , or }");
    }
    ++at_;
    skipWhiteSpace();
    const std::size_t type = at_;
    at_ = static_cast<std::size_t>(
        std::find_if_not(pattern_.begin() + static_cast<std::ptrdiff_t>(at_), pattern_.end(),
                         isLetter) -
        pattern_.begin());
    const auto kind = kindOfChoice(pattern_.substr(type, at_ - type));
    if (!kind) {
      return fail(type, "the type of an argument is plural, selectordinal or select");
    }
    skipWhiteSpace();
    if (!isAt(',')) {
      return fail(at_, "behind an argument's type a , is missing");
    }
    ++at_;
    const std::size_t choice = add(*kind, name, nameEnd);
    if (!parseBranches(*kind, nesting)) {
      return false;
    }
    close(choice);
    return true;
  }

  bool checkName(std::size_t begin, std::size_t end) {
    const std::string_view name = pattern_.substr(begin, end - begin);
    if (name.empty()) {
      return fail(begin, begin == pattern_.size() ? "a { has no }" : "an argument has no name");
    }
    const bool isNumber = std::all_of(name.begin(), name.end(), isDigit);
    return !isNumber || isArgumentNumber(name) || fail(begin, "not the number of an argument");
  }

  // Up to and with the "}" of the argument.
  bool parseBranches(Kind kind, int nesting) {
    bool hasOther = false;
    bool mayHaveOffset = kind != Kind::select;
    for (;;) {
      skipWhiteSpace();
      if (isAtEnd()) {
        return fail(at_, "a { has no }");
      }
      if (isAt('}')) {
        ++at_;
        return hasOther || fail(at_ - 1, "there is no branch other");
      }
      if (mayHaveOffset && pattern_.substr(at_).starts_with(kOffset)) {
        at_ += kOffset.size();
        skipWhiteSpace();
        const std::size_t begin = at_;
        if (!parseNumber()) {
          return false;
        }
        add(Kind::offset, begin, at_);
      } else if (!parseBranch(kind, nesting, hasOther)) {
        return false;
      }
      mayHaveOffset = false;
    }
  }

  bool parseBranch(Kind kind, int nesting, bool& hasOther) {
    const std::size_t selector = at_;
    if (kind != Kind::select && isAt('=')) {
      ++at_;
      if (!parseNumber()) {
        return false;
      }
    } else {
      at_ = skipPatternIdentifier(pattern_, at_);
      if (at_ == selector) {
        return fail(at_, "a branch has no selector");
      }
      hasOther = hasOther || pattern_.substr(selector, at_ - selector) == kOther;
    }
    const std::size_t branch = add(Kind::branch, selector, at_);
    skipWhiteSpace();
    if (!isAt('{')) {
      return fail(at_, "behind a branch's selector a { is missing");
    }
    if (nesting == kMostNestedPatterns) {
      return fail(at_, "branches are nested too deep");
    }
    ++at_;
    if (!parseMessage(nesting + 1, kind != Kind::select)) {
      return false;
    }
    close(branch);
    return true;
  }

  bool parseNumber() {
    const std::size_t begin = at_;
    while (!isAtEnd() && isOfNumber(pattern_[at_])) {
      ++at_;
    }
    return patternNumber(pattern_.substr(begin, at_ - begin)) || fail(begin, "not a number");
  }

  std::string_view pattern_;
  PatternParts& parts_;
  std::size_t at_ = 0;
  std::optional<PatternError> error_;
};

}  // namespace

std::optional<PatternError> parsePattern(std::string_view pattern, PatternParts& parts) {
  return Parser(pattern, parts).parse();
}

std::optional<double> patternNumber(std::string_view text) noexcept {
  if (text.starts_with('+') && !text.starts_with("+-")) {
    text.remove_prefix(1);
  }
  return text.size() <= kLongestNumber ? realNumber(text) : std::nullopt;
}

}  // namespace orvanta
