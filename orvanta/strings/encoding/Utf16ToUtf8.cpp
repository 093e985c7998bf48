#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include <orvanta/strings/encoding/Utf16ToUtf8.h>
#include <orvanta/strings/encoding/avx2/Utf16ToUtf8.h>

// Loading a downloaded table spends a fifth to a quarter of its time here (benchmark row load-500).
// Such tables are mostly ASCII keys, and values in one other script. Each block of sixteen units
// takes one of three paths, none of which branches on single characters.

namespace orvanta::strings {

namespace {

constexpr std::size_t kBlock = 16;

// The UTF-8 of the units below U+0800: the first byte in the lowest bits, the number of bytes from
// bit 24 on.
constexpr std::array<std::uint32_t, 0x800> makePairs() {
  std::array<std::uint32_t, 0x800> pairs = {};
  for (std::uint32_t unit = 0; unit < pairs.size(); ++unit) {
    pairs[unit] = unit < 0x80 ? unit | (1U << 24)
                              : (0xC0 | (unit >> 6)) | ((0x80 | (unit & 0x3F)) << 8) | (2U << 24);
  }
  return pairs;
}

constexpr std::array<std::uint32_t, 0x800> kPairs = makePairs();

// The UTF-8 of all units with the same upper ten bits; only the lower six bits, in the last byte,
// differ.
struct Form {
  std::uint32_t bytes;  // The first byte in the lowest bits; zeros for the unit's lower six bits.
  std::uint8_t shift;   // The position of the lower six bits.
  std::uint8_t length;
};

constexpr std::uint32_t kSurrogate = 0x80000000;  // Marks the forms of surrogates in `bytes`.

constexpr std::array<Form, 1024> makeForms() {
  std::array<Form, 1024> forms = {};
  for (std::uint32_t upper = 0; upper < forms.size(); ++upper) {
    if (upper < (0x80 >> 6)) {
      forms[upper] = {upper << 6, 0, 1};
    } else if (upper < (0x800 >> 6)) {
      forms[upper] = {0x80C0 | upper, 8, 2};
    } else if (upper >= (0xD800 >> 6) && upper < (0xE000 >> 6)) {
      forms[upper] = {kSurrogate, 0, 0};
    } else {
      forms[upper] = {0x8080E0 | (upper >> 6) | ((upper & 0x3F) << 8), 16, 3};
    }
  }
  return forms;
}

constexpr std::array<Form, 1024> kForms = makeForms();

template <std::endian kOrder>
std::uint16_t unitAt(const char* in) noexcept {
  std::uint16_t unit = 0;
  std::memcpy(&unit, in, sizeof unit);
  if constexpr (kOrder != std::endian::native) {
    unit = static_cast<std::uint16_t>((unit << 8) | (unit >> 8));
  }
  return unit;
}

// A mask for four units loaded as one number.
template <std::endian kOrder>
constexpr std::uint64_t fourTimes(std::uint16_t mask) {
  const unsigned wide = mask;
  const unsigned inOrder =
      kOrder == std::endian::native ? wide : ((wide << 8) | (wide >> 8)) & 0xFFFFU;
  return 0x0001000100010001U * std::uint64_t{inOrder};
}

std::uint64_t fourUnitsAt(const char* in) noexcept {
  std::uint64_t units = 0;
  std::memcpy(&units, in, sizeof units);
  return units;
}

std::uint64_t anyOfBlock(const char* in) noexcept {
  std::uint64_t any = 0;
  for (std::size_t index = 0; index < kBlock; index += 4) {
    any |= fourUnitsAt(in + 2 * index);
  }
  return any;
}

template <std::endian kOrder>
void narrowBlock(const char* in, char* out) noexcept {
  std::array<std::uint16_t, kBlock> units = {};
  std::memcpy(units.data(), in, sizeof units);
  std::array<char, kBlock> bytes = {};
  for (std::size_t index = 0; index < kBlock; ++index) {
    bytes[index] =
        static_cast<char>(kOrder == std::endian::native ? units[index] : units[index] >> 8);
  }
  std::memcpy(out, bytes.data(), sizeof bytes);
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

// May write up to three bytes past the character.
void put(const Form& form, std::uint32_t unit, char* out) noexcept {
  store(out, form.bytes | ((unit & 0x3F) << form.shift));
}

char* putBasic(std::uint32_t unit, char* out) noexcept {
  const Form& form = kForms[unit >> 6];
  put(form, unit, out);
  return out + form.length;
}

template <std::endian kOrder>
Transcoded putCharacter(const char* in, const char* inEnd, char* out,
                        Replacements& replacements) noexcept {
  const std::uint32_t unit = unitAt<kOrder>(in);
  if ((unit & 0xF800) != 0xD800) {
    return {in + 2, putBasic(unit, out)};
  }
  if (unit < 0xDC00 && inEnd - in >= 4) {
    const std::uint32_t low = unitAt<kOrder>(in + 2);
    if ((low & 0xFC00) == 0xDC00) {
      return {in + 4, utf8::encode(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00), out)};
    }
  }
  return {in + 2, replacements.put(out)};
}

template <std::endian kOrder>
char* putBlockBelow800(const char* in, char* out) noexcept {
  for (std::size_t index = 0; index < kBlock; ++index) {
    const std::uint32_t pair = kPairs[unitAt<kOrder>(in + 2 * index)];
    store(out, pair);
    out += pair >> 24;
  }
  return out;
}

// Null when one of the units is a surrogate.
template <std::endian kOrder, std::size_t kUnits = kBlock>
char* putBlock(const char* in, char* out) noexcept {
  std::uint32_t seen = 0;
  for (std::size_t index = 0; index < kUnits; ++index) {
    const std::uint32_t unit = unitAt<kOrder>(in + 2 * index);
    const Form& form = kForms[unit >> 6];
    put(form, unit, out);
    out += form.length;
    seen |= form.bytes;
  }
  return (seen & kSurrogate) == 0 ? out : nullptr;
}

// Converts the block, and one more unit when the block ends within a pair of surrogates.
template <std::endian kOrder>
Transcoded putBlockWithSurrogates(const char* in, const char* inEnd, char* out,
                                  Replacements& replacements) noexcept {
  const char* blockEnd = in + 2 * kBlock;
  Transcoded at = {in, out};
  while (at.in < blockEnd) {
    at = putCharacter<kOrder>(at.in, inEnd, at.out, replacements);
  }
  return at;
}

template <std::endian kOrder>
Transcoded transcode(const char* in, const char* inEnd, char* begin, const char* outEnd,
                     Replacements& replacements) noexcept {
  Transcoded at = {in, begin};
  const auto hasRoom = [&] { return outEnd - at.out >= static_cast<std::ptrdiff_t>(kUtf16Room); };
  while (hasRoom() && inEnd - at.in >= static_cast<std::ptrdiff_t>(2 * kBlock)) {
#ifdef ORVANTA_HAS_AVX2
    if (avx2::isAvailable()) {
      const char* const before = at.in;
      at = kOrder == std::endian::little
               ? avx2::utf16LittleBlocksToUtf8(at.in, inEnd, at.out, outEnd)
               : avx2::utf16BigBlocksToUtf8(at.in, inEnd, at.out, outEnd);
      if (at.in != before) {
        continue;
      }
    }
#endif
    const std::uint64_t any = anyOfBlock(at.in);
    if ((any & fourTimes<kOrder>(0xFF80)) == 0) {
      narrowBlock<kOrder>(at.in, at.out);
      at = {at.in + 2 * kBlock, at.out + kBlock};
    } else if ((any & fourTimes<kOrder>(0xF800)) == 0) {
      at = {at.in + 2 * kBlock, putBlockBelow800<kOrder>(at.in, at.out)};
    } else if (char* out = putBlock<kOrder>(at.in, at.out)) {
      at = {at.in + 2 * kBlock, out};
    } else {
      at = putBlockWithSurrogates<kOrder>(at.in, inEnd, at.out, replacements);
    }
  }
  // The rest of a text, and short texts: four units at a time up to the first surrogate, then one
  // at a time.
  while (hasRoom() && inEnd - at.in >= 8) {
    char* out = putBlock<kOrder, 4>(at.in, at.out);
    if (out == nullptr) {
      break;
    }
    at = {at.in + 8, out};
  }
  while (hasRoom() && inEnd - at.in >= 2) {
    at = putCharacter<kOrder>(at.in, inEnd, at.out, replacements);
  }
  return at;
}

}  // namespace

Transcoded utf16LittleToUtf8(const char* in, const char* inEnd, char* out, char* outEnd,
                             Replacements& replacements) noexcept {
  return transcode<std::endian::little>(in, inEnd, out, outEnd, replacements);
}

Transcoded utf16BigToUtf8(const char* in, const char* inEnd, char* out, char* outEnd,
                          Replacements& replacements) noexcept {
  return transcode<std::endian::big>(in, inEnd, out, outEnd, replacements);
}

}  // namespace orvanta::strings
