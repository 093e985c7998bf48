#include "data/Utf16.h"

#include <orvanta/text/Utf8.h>

namespace orvanta::bench {

std::u16string utf16(std::string_view text) {
  std::u16string units;
  units.reserve(text.size());
  while (!text.empty()) {
    const utf8::Decoded decoded = utf8::decode(text);
    text.remove_prefix(decoded.length);
    if (decoded.codePoint < 0x10000) {
      units += static_cast<char16_t>(decoded.codePoint);
      continue;
    }
    const char32_t offset = decoded.codePoint - 0x10000;
    units += static_cast<char16_t>(0xD800 + (offset >> 10));
    units += static_cast<char16_t>(0xDC00 + (offset & 0x3FF));
  }
  return units;
}

}  // namespace orvanta::bench
