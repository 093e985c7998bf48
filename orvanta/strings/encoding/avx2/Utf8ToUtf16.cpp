#include <orvanta/strings/encoding/avx2/Utf8ToUtf16.h>

#ifdef ORVANTA_HAS_AVX2

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace orvanta::strings::avx2 {

namespace {

constexpr std::ptrdiff_t kBlock = 16;
// A character that begins in the last byte of a block may have so many more.
constexpr std::ptrdiff_t kLookAhead = 2;

// Of eight units, those whose bit in the index is set.
constexpr auto kKept =
    makePackingShuffles<2>([](unsigned index, unsigned unit) { return 2 * (index >> unit & 1U); });

[[ORVANTA_AVX2_INLINE]] inline __m256i all(int bits) noexcept {
  return _mm256_set1_epi16(static_cast<short>(bits));
}

[[ORVANTA_AVX2_INLINE]] inline __m256i continuations(const char* at) noexcept {
  return _mm256_and_si256(_mm256_cvtepu8_epi16(loadHalf(at)), all(0x3F));
}

// A unit for each byte, as if a character began there.
[[ORVANTA_AVX2_INLINE]] inline __m256i unitsAt(const char* in, __m128i bytes) noexcept {
  const __m256i first = _mm256_cvtepu8_epi16(bytes);
  const __m256i second = continuations(in + 1);
  const __m256i ofTwo =
      _mm256_or_si256(_mm256_slli_epi16(_mm256_and_si256(first, all(0x1F)), 6), second);
  const __m256i ofThree =
      _mm256_or_si256(_mm256_or_si256(_mm256_slli_epi16(first, 12), _mm256_slli_epi16(second, 6)),
                      continuations(in + 2));
  const __m256i isOne = _mm256_cmpgt_epi16(all(0x80), first);
  const __m256i isThree = _mm256_cmpgt_epi16(first, all(0xDF));
  return _mm256_blendv_epi8(_mm256_blendv_epi8(ofTwo, first, isOne), ofThree, isThree);
}

// Whether a character begins at each byte.
[[ORVANTA_AVX2_INLINE]] inline unsigned beginnings(__m128i bytes) noexcept {
  const __m128i continues = _mm_cmpgt_epi8(_mm_set1_epi8(-0x40), bytes);
  return ~static_cast<unsigned>(_mm_movemask_epi8(continues)) & 0xFFFF;
}

[[ORVANTA_AVX2_INLINE]] inline bool haveFourBytes(__m128i bytes) noexcept {
  const __m128i least = _mm_set1_epi8(static_cast<char>(0xF0));
  return _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_max_epu8(bytes, least), bytes)) != 0;
}

[[ORVANTA_AVX2_INLINE]] inline char* putKept(__m128i units, unsigned kept, char* out) noexcept {
  storeShuffled(out, units, kKept[kept]);
  return out + std::ptrdiff_t{2} * std::popcount(kept);
}

}  // namespace

[[ORVANTA_AVX2]] Transcoded utf8BlocksToUtf16Little(const char* in, const char* inEnd,
                                                    char* out) noexcept {
  for (; inEnd - in >= kBlock + kLookAhead; in += kBlock) {
    const __m128i bytes = loadHalf(in);
    if (_mm_movemask_epi8(bytes) == 0) {
      _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), _mm256_cvtepu8_epi16(bytes));
      out += 2 * kBlock;
    } else if (!haveFourBytes(bytes)) {
      const __m256i units = unitsAt(in, bytes);
      const unsigned begin = beginnings(bytes);
      out = putKept(_mm256_castsi256_si128(units), begin & 0xFF, out);
      out = putKept(_mm256_extracti128_si256(units, 1), begin >> 8, out);
    } else {
      break;
    }
  }
  // The bytes that continue a character of the last block have been converted with it.
  while (in != inEnd && (static_cast<unsigned char>(*in) & 0xC0) == 0x80) {
    ++in;
  }
  return {in, out};
}

}  // namespace orvanta::strings::avx2

#endif
