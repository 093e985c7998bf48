#include <orvanta/text/Utf8.h>

namespace orvanta::utf8 {

namespace {

// The number of bytes that a lead byte announces and the range its second byte may have.
struct Lead {
  std::size_t length;
  unsigned char secondLow;
  unsigned char secondHigh;
};

constexpr Lead leadOf(unsigned char byte) {
  if (byte < 0x80) {
    return {1, 0, 0};
  }
  if (byte >= 0xC2 && byte <= 0xDF) {
    return {2, 0x80, 0xBF};
  }
  if (byte >= 0xE0 && byte <= 0xEF) {
    return {3, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
  }
  if (byte >= 0xF0 && byte <= 0xF4) {
    return {4, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
  }
  return {0, 0, 0};
}

}  // namespace

Decoded decode(std::string_view text) noexcept {
  if (text.empty()) {
    return {kReplacement, 0, false};
  }
  const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char first = byteAt(0);
  const Lead lead = leadOf(first);
  if (lead.length == 1) {
    return {first, 1, true};
  }
  if (lead.length == 0) {
    return {kReplacement, 1, false};
  }
  char32_t codePoint = first & (0x7FU >> lead.length);
  for (std::size_t index = 1; index < lead.length; ++index) {
    const unsigned char low = index == 1 ? lead.secondLow : 0x80;
    const unsigned char high = index == 1 ? lead.secondHigh : 0xBF;
    if (index >= text.size() || byteAt(index) < low || byteAt(index) > high) {
      return {kReplacement, index, false};
    }
    codePoint = (codePoint << 6) | (byteAt(index) & 0x3FU);
  }
  return {codePoint, lead.length, true};
}

void append(std::string& out, char32_t codePoint) {
  char bytes[kLongest];
  out.append(bytes, static_cast<std::size_t>(encode(codePoint, bytes) - bytes));
}

bool isValid(std::string_view text) noexcept {
  while (!text.empty()) {
    const Decoded next = decode(text);
    if (!next.valid) {
      return false;
    }
    text.remove_prefix(next.length);
  }
  return true;
}

std::size_t utf16Length(std::string_view text) noexcept {
  std::size_t units = 0;
  while (!text.empty()) {
    const Decoded next = decode(text);
    units += next.codePoint > 0xFFFF ? 2U : 1U;
    text.remove_prefix(next.length);
  }
  return units;
}

}  // namespace orvanta::utf8
