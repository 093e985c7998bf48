#include <algorithm>
#include <charconv>
#include <optional>

#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/PlainNumber.h>

namespace orvanta {

namespace {

constexpr std::size_t kMostDigits = 2;

struct Placeholder {
  std::size_t size = 0;                 // In characters of the text, with the "%".
  std::optional<std::size_t> position;  // Counted from 0.
  bool isLeft = false;                  // Padded behind the text.
  bool hasZeros = false;
  std::size_t width = 0;
  std::optional<int> precision;
  char conversion = '\0';
};

class PlaceholderParser {
 public:
  // `text` begins with the "%".
  explicit PlaceholderParser(std::string_view text) noexcept : text_(text) {}

  std::optional<Placeholder> parse() {
    const std::optional<int> leading = number();
    if (leading && *leading > 0 && skip('$')) {
      placeholder_.position = static_cast<std::size_t>(*leading - 1);
    } else {
      at_ = 1;
    }
    placeholder_.isLeft = skip('-');
    placeholder_.hasZeros = skip('0') && !placeholder_.isLeft;
    placeholder_.width = static_cast<std::size_t>(number().value_or(0));
    if (skip('.')) {
      placeholder_.precision = number().value_or(0);
    }
    at_ = std::min(text_.find_first_not_of("hlqLzjt", at_), text_.size());
    if (at_ == text_.size() ||
        std::string_view("@sSdDiuUxXofFeEgGcC").find(text_[at_]) == text_.npos) {
      return std::nullopt;
    }
    placeholder_.conversion = text_[at_];
    placeholder_.size = at_ + 1;
    return placeholder_;
  }

 private:
  bool skip(char character) {
    const bool isThere = at_ < text_.size() && text_[at_] == character;
    at_ += isThere ? 1 : 0;
    return isThere;
  }

  std::optional<int> number() {
    int value = 0;
    const std::size_t begin = at_;
    while (at_ < text_.size() && at_ - begin < kMostDigits && text_[at_] >= '0' &&
           text_[at_] <= '9') {
      value = value * 10 + (text_[at_++] - '0');
    }
    return at_ > begin ? std::optional(value) : std::nullopt;
  }

  std::string_view text_;
  std::size_t at_ = 1;
  Placeholder placeholder_;
};

// Hexadecimal and octal; a negative number as printf shows it.
std::string inBase(const MessageValue& value, char conversion) {
  const std::uint64_t bits = value.kind() == MessageValue::Kind::signedInteger
                                 ? static_cast<std::uint64_t>(value.signedInteger())
                                 : value.unsignedInteger();
  char digits[24];
  char* const end = std::to_chars(digits, std::end(digits), bits, conversion == 'o' ? 8 : 16).ptr;
  if (conversion == 'X') {
    std::transform(digits, end, digits, [](char digit) {
      return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    });
  }
  return {digits, end};
}

bool isContinuation(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The argument without its width.
std::string shown(const MessageValue& value, const Placeholder& placeholder,
                  const MessageLanguage& language) {
  if (!value.isNumber()) {
    return std::string(value.text());
  }
  switch (placeholder.conversion) {
    case 'x':
    case 'X':
    case 'o':
      if (value.isInteger()) {
        return inBase(value, placeholder.conversion);
      }
      break;
    case 'f':
    case 'F':
      if (value.kind() == MessageValue::Kind::real) {
        constexpr int kPrintfPrecision = 6;
        const Decimal decimal{value.real(), placeholder.precision.value_or(kPrintfPrecision)};
        return language.written(PlainNumber(decimal));
      }
      break;
    default:
      break;
  }
  const PlainNumber number(value);
  return placeholder.hasZeros ? std::string(number.text()) : language.written(number);
}

void write(const MessageValue& value, const Placeholder& placeholder,
           const MessageLanguage& language, std::pmr::string& out) {
  const std::string text = shown(value, placeholder, language);
  const std::size_t characters = text.size() - static_cast<std::size_t>(std::count_if(
                                                   text.begin(), text.end(), isContinuation));
  const std::size_t padding = std::max(placeholder.width, characters) - characters;
  if (placeholder.isLeft) {
    out.append(text).append(padding, ' ');
    return;
  }
  const bool isPaddedInside = placeholder.hasZeros && value.isNumber();
  const std::size_t sign = isPaddedInside && text.starts_with('-') ? 1 : 0;
  out.append(text, 0, sign).append(padding, isPaddedInside ? '0' : ' ').append(text, sign);
}

}  // namespace

void formatPlaceholders(std::string_view text, const MessageArguments& arguments,
                        const MessageLanguage& language, std::pmr::string& out) {
  std::size_t following = 0;
  for (;;) {
    const std::size_t percent = std::min(text.find('%'), text.size());
    out += text.substr(0, percent);
    text.remove_prefix(percent);
    if (text.empty()) {
      return;
    }
    if (text.starts_with("%%")) {
      out += '%';
      text.remove_prefix(2);
      continue;
    }
    const auto placeholder = PlaceholderParser(text).parse();
    const std::size_t size = placeholder ? placeholder->size : 1;
    const MessageValue* value = nullptr;
    if (placeholder) {
      value = arguments.at(placeholder->position ? *placeholder->position : following++);
    }
    if (value == nullptr) {
      out += text.substr(0, size);
    } else {
      write(*value, *placeholder, language, out);
    }
    text.remove_prefix(size);
  }
}

}  // namespace orvanta
