#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <orvanta/strings/encoding/Utf8Repair.h>
#include <orvanta/strings/encoding/Utf8ToUtf16.h>
#include <orvanta/strings/encoding/avx2/Utf8ToUtf16.h>
#include <orvanta/text/Utf8.h>

// The hot loop of an update (benchmark row "update"): two- and three-byte characters are decoded
// inline. With a call of `utf8::decode` for each of them, tables in several scripts take three
// quarters more instructions.

namespace orvanta::strings {

namespace {

using Byte = unsigned char;

constexpr std::size_t kBlock = 8;
constexpr std::uint64_t kNotAscii = 0x8080808080808080;

char* put(std::uint32_t unit, char* out) noexcept {
  out[0] = static_cast<char>(unit & 0xFF);
  out[1] = static_cast<char>(unit >> 8);
  return out + 2;
}

char* putCharacter(char32_t codePoint, char* out) noexcept {
  if (codePoint <= 0xFFFF) {
    return put(codePoint, out);
  }
  out = put(0xD800 + ((codePoint - 0x10000) >> 10), out);
  return put(0xDC00 + ((codePoint - 0x10000) & 0x3FF), out);
}

void widenBlock(const char* in, char* out) noexcept {
  std::array<Byte, kBlock> bytes = {};
  std::memcpy(bytes.data(), in, sizeof bytes);
  constexpr unsigned kShift = std::endian::native == std::endian::little ? 0 : 8;
  std::array<std::uint16_t, kBlock> units = {};
  for (std::size_t index = 0; index < kBlock; ++index) {
    units[index] = static_cast<std::uint16_t>(bytes[index] << kShift);
  }
  std::memcpy(out, units.data(), sizeof units);
}

// The number of ASCII bytes before the block's first non-ASCII byte. There must be one.
std::size_t leadingAscii(std::uint64_t block) noexcept {
  const std::uint64_t notAscii = block & kNotAscii;
  return static_cast<std::size_t>(std::endian::native == std::endian::little
                                      ? std::countr_zero(notAscii)
                                      : std::countl_zero(notAscii)) /
         8;
}

// Converts the character at `in`, which is not ASCII.
Transcoded putNotAscii(const char* in, const char* inEnd, char* out) noexcept {
  const auto byte = [in](std::size_t index) { return static_cast<Byte>(in[index]); };
  if (byte(0) < 0xE0) {
    return {in + 2, put((byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU), out)};
  }
  if (byte(0) < 0xF0) {
    return {in + 3, put((byte(0) & 0xFU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU), out)};
  }
  const utf8::Decoded next = utf8::decode({in, inEnd});
  return {in + next.length, putCharacter(next.codePoint, out)};
}

// Converts eight bytes of ASCII, or ASCII up to a run of other characters, and that run.
Transcoded putRun(const char* in, const char* inEnd, char* out) noexcept {
  if (inEnd - in >= static_cast<std::ptrdiff_t>(kBlock)) {
    std::uint64_t block = 0;
    std::memcpy(&block, in, kBlock);
    widenBlock(in, out);
    const std::size_t count = (block & kNotAscii) == 0 ? kBlock : leadingAscii(block);
    in += count;
    out += 2 * count;
    if (count == kBlock) {
      return {in, out};
    }
  }
  Transcoded at = {in, out};
  do {
    at = static_cast<Byte>(*at.in) < 0x80
             ? Transcoded{at.in + 1, put(static_cast<Byte>(*at.in), at.out)}
             : putNotAscii(at.in, inEnd, at.out);
  } while (at.in != inEnd && static_cast<Byte>(*at.in) >= 0x80);
  return at;
}

}  // namespace

char* utf8ToUtf16Little(const char* in, const char* inEnd, char* out) noexcept {
  Transcoded at = {in, out};
  while (at.in != inEnd) {
#ifdef ORVANTA_HAS_AVX2
    if (avx2::isAvailable()) {
      at = avx2::utf8BlocksToUtf16Little(at.in, inEnd, at.out);
      if (at.in == inEnd) {
        break;
      }
    }
#endif
    at = putRun(at.in, inEnd, at.out);
  }
  return at.out;
}

}  // namespace orvanta::strings
