#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include <orvanta/platform/standard/strings/Utf16ToUtf8.h>

// This is where a downloaded table's loading time is spent: such tables are UTF-16, mostly ASCII
// keys and values in the reader's own script. Sixteen units at a time are looked at and take one of
// three ways, none of which branches on single characters.

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kBlock = 16;
constexpr char32_t kReplacement = 0xFFFD;

// The UTF-8 of a unit below U+0800, of which the second byte may be meaningless.
using Pair = std::array<char, 2>;

constexpr std::array<Pair, 0x800> makePairs() {
  std::array<Pair, 0x800> pairs = {};
  for (unsigned unit = 0; unit < pairs.size(); ++unit) {
    if (unit < 0x80) {
      pairs[unit] = {static_cast<char>(unit), 0};
    } else {
      pairs[unit] = {static_cast<char>(0xC0 | (unit >> 6)),
                     static_cast<char>(0x80 | (unit & 0x3F))};
    }
  }
  return pairs;
}

constexpr std::array<Pair, 0x800> kPairs = makePairs();

template <std::endian kOrder>
std::uint16_t unitAt(const char* in) noexcept {
  std::uint16_t unit = 0;
  std::memcpy(&unit, in, sizeof unit);
  if constexpr (kOrder != std::endian::native) {
    unit = static_cast<std::uint16_t>((unit << 8) | (unit >> 8));
  }
  return unit;
}

// A mask that four units, loaded at once, are to be tested with.
template <std::endian kOrder>
constexpr std::uint64_t fourTimes(std::uint16_t mask) {
  const unsigned inOrder =
      kOrder == std::endian::native ? mask : ((mask << 8) | (mask >> 8)) & 0xFFFFU;
  return 0x0001000100010001U * std::uint64_t{inOrder};
}

std::uint64_t anyOfBlock(const char* in) noexcept {
  std::array<std::uint64_t, kBlock / 4> words = {};
  std::memcpy(words.data(), in, sizeof words);
  return (words[0] | words[1]) | (words[2] | words[3]);
}

template <std::endian kOrder>
void narrowBlock(const char* in, char* out) noexcept {
  for (std::size_t index = 0; index < kBlock; ++index) {
    out[index] = in[2 * index + (kOrder == std::endian::big ? 1 : 0)];
  }
}

template <std::endian kOrder>
char* pairBlock(const char* in, char* out) noexcept {
  for (std::size_t index = 0; index < kBlock; ++index) {
    const std::uint16_t unit = unitAt<kOrder>(in + 2 * index);
    std::memcpy(out, kPairs[unit].data(), sizeof(Pair));
    out += unit >= 0x80 ? 2 : 1;
  }
  return out;
}

void store(char* out, std::uint32_t firstByteLowest) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(out, &firstByteLowest, sizeof firstByteLowest);
  } else {
    for (unsigned index = 0; index < sizeof firstByteLowest; ++index) {
      out[index] = static_cast<char>(firstByteLowest >> (8 * index));
    }
  }
}

// No surrogate. Writes four bytes, of which the length that it gives are meant.
char* putBasic(std::uint32_t unit, char* out) noexcept {
  const std::uint32_t last = 0x80 | (unit & 0x3F);
  const std::uint32_t two = (0xC0 | (unit >> 6)) | (last << 8);
  const std::uint32_t three =
      (0xE0 | (unit >> 12)) | ((0x80 | ((unit >> 6) & 0x3F)) << 8) | (last << 16);
  const std::uint32_t upToTwo = unit < 0x80 ? unit : two;
  store(out, unit < 0x800 ? upToTwo : three);
  return out + 1 + (unit >= 0x80 ? 1 : 0) + (unit >= 0x800 ? 1 : 0);
}

char* putBeyondBasic(std::uint32_t high, std::uint32_t low, char* out) noexcept {
  const std::uint32_t codePoint = 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
  store(out, (0xF0 | (codePoint >> 18)) | ((0x80 | ((codePoint >> 12) & 0x3F)) << 8) |
                 ((0x80 | ((codePoint >> 6) & 0x3F)) << 16) | ((0x80 | (codePoint & 0x3F)) << 24));
  return out + 4;
}

template <std::endian kOrder>
Transcoded putCharacter(const char* in, const char* inEnd, char* out) noexcept {
  const std::uint32_t unit = unitAt<kOrder>(in);
  if ((unit & 0xF800) != 0xD800) {
    return {in + 2, putBasic(unit, out)};
  }
  if (unit < 0xDC00 && inEnd - in >= 4) {
    const std::uint32_t low = unitAt<kOrder>(in + 2);
    if ((low & 0xFC00) == 0xDC00) {
      return {in + 4, putBeyondBasic(unit, low, out)};
    }
  }
  return {in + 2, putBasic(kReplacement, out)};
}

// The block, and one unit more where it ends within a pair of surrogates.
template <std::endian kOrder>
Transcoded putBlock(const char* in, const char* inEnd, char* out) noexcept {
  const char* blockEnd = in + 2 * kBlock;
  Transcoded at = {in, out};
  while (at.in < blockEnd) {
    at = putCharacter<kOrder>(at.in, inEnd, at.out);
  }
  return at;
}

template <std::endian kOrder>
Transcoded transcode(const char* in, const char* inEnd, char* out, const char* outEnd) noexcept {
  Transcoded at = {in, out};
  const auto hasRoom = [&] { return outEnd - at.out >= static_cast<std::ptrdiff_t>(kUtf16Room); };
  while (hasRoom() && inEnd - at.in >= static_cast<std::ptrdiff_t>(2 * kBlock)) {
    const std::uint64_t any = anyOfBlock(at.in);
    if ((any & fourTimes<kOrder>(0xFF80)) == 0) {
      narrowBlock<kOrder>(at.in, at.out);
      at = {at.in + 2 * kBlock, at.out + kBlock};
    } else if ((any & fourTimes<kOrder>(0xF800)) == 0) {
      at = {at.in + 2 * kBlock, pairBlock<kOrder>(at.in, at.out)};
    } else {
      at = putBlock<kOrder>(at.in, inEnd, at.out);
    }
  }
  while (hasRoom() && inEnd - at.in >= 2) {
    at = putCharacter<kOrder>(at.in, inEnd, at.out);
  }
  if (hasRoom() && inEnd - at.in == 1) {
    at = {at.in + 1, putBasic(kReplacement, at.out)};
  }
  return at;
}

}  // namespace

Transcoded utf16LittleToUtf8(const char* in, const char* inEnd, char* out, char* outEnd) noexcept {
  return transcode<std::endian::little>(in, inEnd, out, outEnd);
}

Transcoded utf16BigToUtf8(const char* in, const char* inEnd, char* out, char* outEnd) noexcept {
  return transcode<std::endian::big>(in, inEnd, out, outEnd);
}

}  // namespace orvanta::platform::standard
