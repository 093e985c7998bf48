#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <orvanta/text/Utf8.h>

namespace orvanta::test {

/// A big-endian number of `size` bytes, which may be more than 8.
inline std::string bigEndian(std::uint64_t value, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = size; i-- > 0; value >>= 8) {
    bytes[i] = static_cast<char>(value & 0xFF);
  }
  return bytes;
}

/// An encoding of text, with or without byte-order mark.
struct Encoding {
  const char* name;
  std::string_view mark;
  std::size_t unit;
  bool isBigEndian;
};

using namespace std::string_view_literals;

inline constexpr Encoding kUtf16Little = {"UTF-16, little, with a mark", "\xFF\xFE"sv, 2, false};
inline constexpr Encoding kUtf16Big = {"UTF-16, big", ""sv, 2, true};
inline constexpr Encoding kEncodings[] = {
    {"UTF-8", ""sv, 1, false},
    {"UTF-8 with a mark", "\xEF\xBB\xBF"sv, 1, false},
    {"UTF-16, little", ""sv, 2, false},
    kUtf16Little,
    kUtf16Big,
    {"UTF-16, big, with a mark", "\xFE\xFF"sv, 2, true},
    {"UTF-32, little", ""sv, 4, false},
    {"UTF-32, little, with a mark", "\xFF\xFE\0\0"sv, 4, false},
    {"UTF-32, big", ""sv, 4, true},
    {"UTF-32, big, with a mark", "\0\0\xFE\xFF"sv, 4, true},
};

/// The text, given in UTF-8, in this encoding without its mark.
inline std::string unitsOf(const Encoding& encoding, std::string_view text) {
  if (encoding.unit == 1) {
    return std::string(text);
  }
  std::string bytes;
  const auto put = [&](std::uint32_t unit) {
    const std::string big = bigEndian(unit, encoding.unit);
    encoding.isBigEndian ? bytes.append(big) : bytes.append(big.rbegin(), big.rend());
  };
  while (!text.empty()) {
    const utf8::Decoded next = utf8::decode(text);
    if (encoding.unit == 2 && next.codePoint >= 0x10000) {
      put(0xD800 + ((next.codePoint - 0x10000) >> 10));
      put(0xDC00 + ((next.codePoint - 0x10000) & 0x3FF));
    } else {
      put(next.codePoint);
    }
    text.remove_prefix(next.length);
  }
  return bytes;
}

inline std::string repeated(std::string_view piece, std::size_t times) {
  std::string all;
  for (; times > 0; --times) {
    all += piece;
  }
  return all;
}

inline std::string encode(const Encoding& encoding, std::string_view text) {
  return std::string(encoding.mark) + unitsOf(encoding, text);
}

}  // namespace orvanta::test
