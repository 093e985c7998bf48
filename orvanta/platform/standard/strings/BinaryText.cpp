#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>

#include <orvanta/platform/Utf8.h>
#include <orvanta/platform/standard/strings/BinaryText.h>

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kBlock = sizeof(std::uint64_t);
constexpr std::size_t kLongestUnit = 3;
constexpr auto kNotAsciiBytes = std::bit_cast<std::uint64_t>(
    std::array<unsigned char, kBlock>{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80});
constexpr auto kNotAsciiUnits = std::bit_cast<std::uint64_t>(
    std::array<unsigned char, kBlock>{0xFF, 0x80, 0xFF, 0x80, 0xFF, 0x80, 0xFF, 0x80});

std::uint64_t loadBlock(const char* bytes) noexcept {
  std::uint64_t block = 0;
  std::memcpy(&block, bytes, kBlock);
  return block;
}

bool isAscii(std::string_view bytes) noexcept {
  std::uint64_t seen = 0;
  while (bytes.size() >= kBlock) {
    seen |= loadBlock(bytes.data());
    bytes.remove_prefix(kBlock);
  }
  std::uint64_t rest = 0;
  std::memcpy(&rest, bytes.data(), bytes.size());
  return ((seen | rest) & kNotAsciiBytes) == 0;
}

char32_t unitAt(const char* bytes) noexcept {
  return static_cast<char32_t>((static_cast<unsigned char>(bytes[0]) << 8) |
                               static_cast<unsigned char>(bytes[1]));
}

bool isHighSurrogate(char32_t unit) noexcept {
  return (unit & 0xFC00) == 0xD800;
}
bool isLowSurrogate(char32_t unit) noexcept {
  return (unit & 0xFC00) == 0xDC00;
}

char tailByte(char32_t codePoint, unsigned shift) noexcept {
  return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
}

// Writes one character into room for it and gives the place behind it.
char* write(char* out, char32_t codePoint) noexcept {
  if (codePoint < 0x80) {
    *out++ = static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    *out++ = static_cast<char>(0xC0 | (codePoint >> 6));
    *out++ = tailByte(codePoint, 0);
  } else if (codePoint < 0x10000) {
    *out++ = static_cast<char>(0xE0 | (codePoint >> 12));
    *out++ = tailByte(codePoint, 6);
    *out++ = tailByte(codePoint, 0);
  } else {
    *out++ = static_cast<char>(0xF0 | (codePoint >> 18));
    *out++ = tailByte(codePoint, 12);
    *out++ = tailByte(codePoint, 6);
    *out++ = tailByte(codePoint, 0);
  }
  return out;
}

}  // namespace

std::size_t BinaryText::leastSize(const BinaryObject& text) noexcept {
  return text.kind == BinaryKind::kUtf16Text ? text.payload.size() / 2 : text.payload.size();
}

std::string_view BinaryText::decode(const BinaryObject& text) {
  if (text.kind == BinaryKind::kUtf16Text) {
    return decodeUtf16(text.payload);
  }
  return isAscii(text.payload) ? text.payload : decodeBytes(text.payload);
}

std::string_view BinaryText::decodeUtf16(std::string_view bigEndian) {
  const std::size_t room = bigEndian.size() / 2 * kLongestUnit;
  if (decoded_.size() < room) {
    decoded_.resize(room);
  }
  char* out = decoded_.data();
  const char* at = bigEndian.data();
  const char* const end = at + bigEndian.size();
  while (at != end) {
    while (end - at >= static_cast<std::ptrdiff_t>(kBlock) &&
           (loadBlock(at) & kNotAsciiUnits) == 0) {
      for (std::size_t odd = 1; odd < kBlock; odd += 2) {
        *out++ = at[odd];
      }
      at += kBlock;
    }
    if (at == end) {
      break;
    }
    char32_t character = unitAt(at);
    at += 2;
    if (isHighSurrogate(character) && at != end && isLowSurrogate(unitAt(at))) {
      character = 0x10000 + ((character & 0x3FF) << 10) + (unitAt(at) & 0x3FF);
      at += 2;
    } else if (isHighSurrogate(character) || isLowSurrogate(character)) {
      character = utf8::kReplacement;
    }
    out = write(out, character);
  }
  return {decoded_.data(), static_cast<std::size_t>(out - decoded_.data())};
}

std::string_view BinaryText::decodeBytes(std::string_view bytes) {
  decoded_.clear();
  while (!bytes.empty()) {
    const utf8::Decoded next = utf8::decode(bytes);
    std::array<char, 4> character;
    const char* const end = write(character.data(), next.codePoint);
    decoded_.insert(decoded_.end(), static_cast<const char*>(character.data()), end);
    bytes.remove_prefix(next.length);
  }
  return {decoded_.data(), decoded_.size()};
}

}  // namespace orvanta::platform::standard
