#include <cstddef>
#include <string_view>

#include <orvanta/text/CharacterSet.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

bool isMember(char32_t character, CharacterSet set) {
  switch (character) {
    case 0x0009:
    case 0x0020:
    case 0x00A0:
    case 0x1680:
    case 0x202F:
    case 0x205F:
    case 0x3000:
      return true;
    case 0x000A:
    case 0x000B:
    case 0x000C:
    case 0x000D:
    case 0x0085:
    case 0x2028:
    case 0x2029:
      return set == CharacterSet::whitespaceAndNewline;
    default:
      return character >= 0x2000 && character <= 0x200A;
  }
}

bool isAsciiGraphic(char byte) {
  return byte > 0x20 && byte < 0x7F;
}

std::size_t startOfLastCharacter(std::string_view text) {
  std::size_t start = text.size() - 1;
  while (start > 0 && text.size() - start < 4 &&
         (static_cast<unsigned char>(text[start]) & 0xC0U) == 0x80) {
    --start;
  }
  return start;
}

}  // namespace

String stringByTrimming(const String& text, CharacterSet set) {
  std::string_view rest = text.view();
  if (!rest.empty() && isAsciiGraphic(rest.front()) && isAsciiGraphic(rest.back())) {
    return text;
  }
  while (!rest.empty()) {
    const utf8::Decoded first = utf8::decode(rest);
    if (!first.valid || !isMember(first.codePoint, set)) {
      break;
    }
    rest.remove_prefix(first.length);
  }
  while (!rest.empty()) {
    const std::size_t start = startOfLastCharacter(rest);
    const utf8::Decoded last = utf8::decode(rest.substr(start));
    if (!last.valid || start + last.length != rest.size() || !isMember(last.codePoint, set)) {
      break;
    }
    rest.remove_suffix(last.length);
  }
  return rest.size() == text.size() ? text : String(rest);
}

}  // namespace orvanta
