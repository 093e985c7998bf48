#include <algorithm>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

// The minimum length, in UTF-16 code units, of an identifier that is split.
constexpr std::size_t kShortestSplit = 3;
// The maximum number of UTF-8 bytes for one UTF-16 code unit.
constexpr std::size_t kLongestUnit = 3;

bool isAscii(char byte) noexcept {
  return static_cast<unsigned char>(byte) < 0x80;
}

// Counts UTF-16 code units only where the number of bytes does not decide.
bool isShort(std::string_view identifier) noexcept {
  if (identifier.size() < kShortestSplit) {
    return true;
  }
  const std::string_view first = identifier.substr(0, kShortestSplit);
  return identifier.size() <= (kShortestSplit - 1) * kLongestUnit &&
         !std::all_of(first.begin(), first.end(), isAscii) &&
         utf8::utf16Length(identifier) < kShortestSplit;
}

}  // namespace

std::string_view languagePart(std::string_view identifier) noexcept {
  const std::size_t hyphen = identifier.find('-');
  return hyphen == std::string_view::npos || isShort(identifier) ? identifier
                                                                 : identifier.substr(0, hyphen);
}

}  // namespace orvanta
