#include <algorithm>
#include <charconv>

#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/Placeholders.h>
#include <orvanta/messages/PlainNumber.h>

namespace orvanta {

namespace {

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
  PlaceholderReader placeholders(text);
  std::size_t copied = 0;
  while (const auto placeholder = placeholders.next()) {
    const MessageValue* const value = arguments.at(placeholder->argument);
    if (!placeholder->isPercent() && value == nullptr) {
      continue;
    }
    out += text.substr(copied, placeholder->begin - copied);
    copied = placeholder->begin + placeholder->size;
    if (placeholder->isPercent()) {
      out += '%';
    } else {
      write(*value, *placeholder, language, out);
    }
  }
  out += text.substr(copied);
}

}  // namespace orvanta
