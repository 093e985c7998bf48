#pragma once

#include <bitset>
#include <string>
#include <string_view>

#include <orvanta/strings/encoding/Escapes.h>
#include <orvanta/strings/probe/SampledSearch.h>

namespace orvanta::strings {

/// The characters which, behind a backslash, may spell a character of a prefix. Also line breaks,
/// which some readers drop behind a backslash.
class SpellingEscapes {
 public:
  explicit SpellingEscapes(std::string_view prefix) noexcept {
    for (unsigned code = 0; code < characters_.size(); ++code) {
      const char character = static_cast<char>(code);
      const bool isOfPrefix = prefix.find(character) != std::string_view::npos;
      characters_[code] = isNumericEscape(character) || character == '\n' || character == '\r' ||
                          (isOfPrefix && isEscapeForItself(character));
    }
  }
  [[nodiscard]] bool has(char character) const noexcept {
    return characters_[static_cast<unsigned char>(character)];
  }

 private:
  std::bitset<256> characters_;
};

/// The searches for one prefix in files of all forms.
struct PrefixSearches {
  explicit PrefixSearches(std::string_view wanted)
      : prefix(wanted),
        inUtf8({prefix}),
        inUtf16({asUtf16(wanted)}),
        inBinary({prefix, asUtf16(wanted)}),
        escapes(wanted) {}

  const std::string prefix;
  const SampledSearch inUtf8;
  const SampledSearch inUtf16;   ///< Of either byte order.
  const SampledSearch inBinary;  ///< ASCII and UTF-16, the encodings of binary property lists.
  const SpellingEscapes escapes;

 private:
  // Without the zero byte at the beginning or the end, so that it serves both byte orders.
  static std::string asUtf16(std::string_view ascii) {
    std::string bytes;
    for (const char character : ascii) {
      bytes.append(bytes.empty() ? 0 : 1, '\0').push_back(character);
    }
    return bytes;
  }
};

}  // namespace orvanta::strings
