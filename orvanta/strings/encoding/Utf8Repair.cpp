#include <algorithm>

#include <orvanta/strings/encoding/Utf8Repair.h>

namespace orvanta::strings {

Transcoded repairUtf8(const char* in, const char* inEnd, char* out, const char* outEnd,
                      Replacements& replacements) noexcept {
  constexpr auto kLongest = static_cast<std::ptrdiff_t>(utf8::kLongest);
  while (in != inEnd && outEnd - out >= kLongest) {
    const utf8::Decoded next =
        utf8::decode({in, static_cast<std::size_t>(std::min(inEnd - in, kLongest))});
    out = next.valid ? utf8::encode(next.codePoint, out) : replacements.put(out);
    in += next.length;
  }
  return {in, out};
}

}  // namespace orvanta::strings
