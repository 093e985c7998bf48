#include <algorithm>
#include <array>
#include <iterator>

#include <orvanta/messages/pattern/PatternCharacters.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

constexpr Range kSyntax[] = {
    {0x0021, 0x002F}, {0x003A, 0x0040}, {0x005B, 0x005E}, {0x0060, 0x0060}, {0x007B, 0x007E},
    {0x00A1, 0x00A7}, {0x00A9, 0x00A9}, {0x00AB, 0x00AC}, {0x00AE, 0x00AE}, {0x00B0, 0x00B1},
    {0x00B6, 0x00B6}, {0x00BB, 0x00BB}, {0x00BF, 0x00BF}, {0x00D7, 0x00D7}, {0x00F7, 0x00F7},
    {0x2010, 0x2027}, {0x2030, 0x203E}, {0x2041, 0x2053}, {0x2055, 0x205E}, {0x2190, 0x245F},
    {0x2500, 0x2775}, {0x2794, 0x2BFF}, {0x2E00, 0x2E7F}, {0x3001, 0x3003}, {0x3008, 0x3020},
    {0x3030, 0x3030}, {0xFD3E, 0xFD3F}, {0xFE45, 0xFE46},
};

constexpr bool isSyntax(char32_t character) noexcept {
  const auto* const range =
      std::lower_bound(std::begin(kSyntax), std::end(kSyntax), character,
                       [](const Range& each, char32_t wanted) { return each.last < wanted; });
  return range != std::end(kSyntax) && range->first <= character;
}

constexpr bool isWhiteSpace(char32_t character) noexcept {
  return (character >= 0x09 && character <= 0x0D) || character == ' ' || character == 0x85 ||
         character == 0x200E || character == 0x200F || character == 0x2028 || character == 0x2029;
}

constexpr bool isIdentifier(char32_t character) noexcept {
  return !isSyntax(character) && !isWhiteSpace(character);
}

// Skips ASCII characters, of which most names and keywords are made, without decoding: the
// benchmark's row `message`.
template <bool (*belongs)(char32_t) noexcept>
std::size_t skipWhile(std::string_view pattern, std::size_t at) noexcept {
  constexpr std::size_t kAscii = 128;
  static constexpr auto kBelongs = [] {
    std::array<bool, kAscii> table{};
    for (std::size_t character = 0; character < kAscii; ++character) {
      table[character] = belongs(static_cast<char32_t>(character));
    }
    return table;
  }();
  while (at < pattern.size()) {
    const auto byte = static_cast<unsigned char>(pattern[at]);
    if (byte < kAscii) {
      if (!kBelongs[byte]) {
        break;
      }
      ++at;
      continue;
    }
    const utf8::Decoded next = utf8::decode(pattern.substr(at));
    if (!belongs(next.codePoint)) {
      break;
    }
    at += next.length;
  }
  return at;
}

}  // namespace

bool isPatternSyntax(char32_t character) noexcept {
  return isSyntax(character);
}

bool isPatternWhiteSpace(char32_t character) noexcept {
  return isWhiteSpace(character);
}

std::size_t skipPatternWhiteSpace(std::string_view pattern, std::size_t at) noexcept {
  return skipWhile<isWhiteSpace>(pattern, at);
}

std::size_t skipPatternIdentifier(std::string_view pattern, std::size_t at) noexcept {
  return skipWhile<isIdentifier>(pattern, at);
}

}  // namespace orvanta
