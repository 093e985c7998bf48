#include <orvanta/strings/encoding/avx2/Utf8Check.h>

#ifdef ORVANTA_HAS_AVX2

#include <array>
#include <cstddef>
#include <cstdint>

// Each error of two adjacent bytes shows in three nibbles. A shuffle of a vector looks each of
// them up in a table of sixteen, for all bytes at once. The method is that of J. Keiser and
// D. Lemire, "Validating UTF-8 In Less Than One Instruction Per Byte", 2021.

namespace orvanta::strings::avx2 {

namespace {

// Sets of values of a nibble, one bit for each.
constexpr unsigned range(unsigned first, unsigned last) {
  return (2U << last) - (1U << first);
}
constexpr unsigned kAny = range(0x0, 0xF);
constexpr unsigned kAscii = range(0x0, 0x7);
constexpr unsigned kContinuation = range(0x8, 0xB);
constexpr unsigned kLead = range(0xC, 0xF);

struct Error {
  unsigned upperBefore;  // Of the byte before.
  unsigned lowerBefore;
  unsigned upper;
};

constexpr std::array<Error, 8> kErrors = {{
    {kLead, kAny, kAscii | kLead},                             // A character that is cut off.
    {kAscii, kAny, kContinuation},                             // A continuation of nothing.
    {range(0xC, 0xC), range(0x0, 0x1), kContinuation},         // Two bytes for one.
    {range(0xE, 0xE), range(0x0, 0x0), range(0x8, 0x9)},       // Three bytes for two.
    {range(0xE, 0xE), range(0xD, 0xD), range(0xA, 0xB)},       // A surrogate.
    {range(0xF, 0xF), range(0x4, 0xF), range(0x9, 0xB)},       // Beyond U+10FFFF.
    {range(0xF, 0xF), 1U | range(0x5, 0xF), range(0x8, 0x8)},  // The same, or four bytes for three.
    {kContinuation, kAny, kContinuation},  // Wrong unless the byte is a third or fourth one.
}};
constexpr int kThirdOrFourth = 0x80;  // The bit of the last row.

constexpr Shuffle tableOf(unsigned Error::*nibble) {
  Shuffle table = {};
  for (unsigned value = 0; value < table.size(); ++value) {
    for (unsigned row = 0; row < kErrors.size(); ++row) {
      table[value] |= static_cast<std::uint8_t>(((kErrors[row].*nibble >> value) & 1U) << row);
    }
  }
  return table;
}

constexpr Shuffle kUpperBefore = tableOf(&Error::upperBefore);
constexpr Shuffle kLowerBefore = tableOf(&Error::lowerBefore);
constexpr Shuffle kUpper = tableOf(&Error::upper);

[[ORVANTA_AVX2_INLINE]] inline __m256i twice(const Shuffle& table) noexcept {
  return _mm256_broadcastsi128_si256(loadHalf(table.data()));
}

[[ORVANTA_AVX2_INLINE]] inline __m256i allBytes(int byte) noexcept {
  return _mm256_set1_epi8(static_cast<char>(byte));
}

[[ORVANTA_AVX2_INLINE]] inline __m256i lowerHalves(__m256i bytes) noexcept {
  return _mm256_and_si256(bytes, allBytes(0x0F));
}

[[ORVANTA_AVX2_INLINE]] inline __m256i upperHalves(__m256i bytes) noexcept {
  return lowerHalves(_mm256_srli_epi16(bytes, 4));
}

// The errors of 32 bytes; zero in each that is valid.
[[ORVANTA_AVX2_INLINE]] inline __m256i errorsAt(const unsigned char* at) noexcept {
  const __m256i before = load(at - 1);
  const __m256i pairs = _mm256_and_si256(
      _mm256_and_si256(_mm256_shuffle_epi8(twice(kUpperBefore), upperHalves(before)),
                       _mm256_shuffle_epi8(twice(kLowerBefore), lowerHalves(before))),
      _mm256_shuffle_epi8(twice(kUpper), upperHalves(load(at))));
  const __m256i thirds = _mm256_subs_epu8(load(at - 2), allBytes(0xE0 - kThirdOrFourth));
  const __m256i fourths = _mm256_subs_epu8(load(at - 3), allBytes(0xF0 - kThirdOrFourth));
  const __m256i mustContinue =
      _mm256_and_si256(_mm256_or_si256(thirds, fourths), allBytes(kThirdOrFourth));
  return _mm256_xor_si256(mustContinue, pairs);
}

}  // namespace

[[ORVANTA_AVX2]] bool areValidUtf8Blocks(const unsigned char* at,
                                         const unsigned char* end) noexcept {
  constexpr std::ptrdiff_t kVector = 32;
  __m256i errors = _mm256_setzero_si256();
  for (; at != end; at += 2 * kVector) {
    // The three bytes before, too: a character may begin there.
    const __m256i any =
        _mm256_or_si256(_mm256_or_si256(load(at - 3), load(at)), load(at + kVector));
    if (_mm256_movemask_epi8(any) != 0) {
      errors = _mm256_or_si256(errors, _mm256_or_si256(errorsAt(at), errorsAt(at + kVector)));
    }
  }
  return _mm256_testz_si256(errors, errors) != 0;
}

}  // namespace orvanta::strings::avx2

#endif
