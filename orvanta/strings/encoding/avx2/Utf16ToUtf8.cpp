#include <orvanta/strings/encoding/avx2/Utf16ToUtf8.h>

#ifdef ORVANTA_HAS_AVX2

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace orvanta::strings::avx2 {

namespace {

constexpr std::ptrdiff_t kBlock = 32;  // Bytes.
constexpr auto kRoom = static_cast<std::ptrdiff_t>(kUtf16Room);

// Eight characters of one or two bytes, each in a field of two. A bit of the index is set for one
// of a single byte.
constexpr auto kPairs = makePackingShuffles<2>(
    [](unsigned index, unsigned character) { return 2 - (index >> character & 1U); });

// Four characters of up to three bytes, each in a field of four. The lower four bits of the index
// are set for those of more than one byte, the upper for those of more than two.
constexpr auto kTriples = makePackingShuffles<4>([](unsigned index, unsigned character) {
  return 1 + (index >> character & 1U) + (index >> (4 + character) & 1U);
});

[[ORVANTA_AVX2_INLINE]] inline __m256i all16(int bits) noexcept {
  return _mm256_set1_epi16(static_cast<short>(bits));
}

[[ORVANTA_AVX2_INLINE]] inline __m256i all32(int bits) noexcept {
  return _mm256_set1_epi32(bits);
}

[[ORVANTA_AVX2_INLINE]] inline __m256i bytesSwapped(__m256i units) noexcept {
  return _mm256_or_si256(_mm256_slli_epi16(units, 8), _mm256_srli_epi16(units, 8));
}

[[ORVANTA_AVX2_INLINE]] inline bool haveNone(__m256i units, int bits) noexcept {
  return _mm256_testz_si256(units, all16(bits)) != 0;
}

[[ORVANTA_AVX2_INLINE]] inline bool haveSurrogate(__m256i units) noexcept {
  return _mm256_movemask_epi8(
             _mm256_cmpeq_epi16(_mm256_and_si256(units, all16(0xF800)), all16(0xD800))) != 0;
}

[[ORVANTA_AVX2_INLINE]] inline char* putAscii(__m256i units, char* out) noexcept {
  const __m128i bytes =
      _mm_packus_epi16(_mm256_castsi256_si128(units), _mm256_extracti128_si256(units, 1));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
  return out + sizeof bytes;
}

[[ORVANTA_AVX2_INLINE]] inline char* putPairs(__m128i pairs, unsigned single, char* out) noexcept {
  storeShuffled(out, pairs, kPairs[single]);
  return out + 16 - std::popcount(single);
}

// All units are below U+0800.
[[ORVANTA_AVX2_INLINE]] inline char* putBelow800(__m256i units, char* out) noexcept {
  const __m256i lead = _mm256_or_si256(_mm256_srli_epi16(units, 6), all16(0x80C0));
  const __m256i last = _mm256_slli_epi16(_mm256_and_si256(units, all16(0x3F)), 8);
  const __m256i isSingle = _mm256_cmpgt_epi16(all16(0x80), units);
  const __m256i pairs = _mm256_blendv_epi8(_mm256_or_si256(lead, last), units, isSingle);
  const auto single = static_cast<unsigned>(
      _mm256_movemask_epi8(_mm256_packs_epi16(isSingle, _mm256_setzero_si256())));
  out = putPairs(_mm256_castsi256_si128(pairs), single & 0xFF, out);
  return putPairs(_mm256_extracti128_si256(pairs, 1), single >> 16, out);
}

[[ORVANTA_AVX2_INLINE]] inline char* putTriples(__m128i triples, unsigned longer,
                                                char* out) noexcept {
  storeShuffled(out, triples, kTriples[longer]);
  return out + 4 + std::popcount(longer);
}

// Eight units that are no surrogates.
[[ORVANTA_AVX2_INLINE]] inline char* putAny(__m128i half, char* out) noexcept {
  const __m256i units = _mm256_cvtepu16_epi32(half);
  const __m256i low = _mm256_and_si256(units, all32(0x3F));
  const __m256i middle = _mm256_and_si256(_mm256_srli_epi32(units, 6), all32(0x3F));
  const __m256i ofTwo = _mm256_or_si256(
      _mm256_or_si256(_mm256_srli_epi32(units, 6), _mm256_slli_epi32(low, 8)), all32(0x80C0));
  const __m256i ofThree =
      _mm256_or_si256(_mm256_or_si256(_mm256_srli_epi32(units, 12), _mm256_slli_epi32(middle, 8)),
                      _mm256_or_si256(_mm256_slli_epi32(low, 16), all32(0x8080E0)));
  const __m256i isTwo = _mm256_cmpgt_epi32(units, all32(0x7F));
  const __m256i isThree = _mm256_cmpgt_epi32(units, all32(0x7FF));
  const __m256i triples =
      _mm256_blendv_epi8(_mm256_blendv_epi8(units, ofTwo, isTwo), ofThree, isThree);
  const auto two = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(isTwo)));
  const auto three = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(isThree)));
  out = putTriples(_mm256_castsi256_si128(triples), (two & 0xF) | (three & 0xF) << 4, out);
  return putTriples(_mm256_extracti128_si256(triples, 1), two >> 4 | (three & 0xF0), out);
}

template <bool kIsBig>
[[ORVANTA_AVX2_INLINE]] inline Transcoded toUtf8(const char* in, const char* inEnd, char* out,
                                                 const char* outEnd) noexcept {
  for (; inEnd - in >= kBlock && outEnd - out >= kRoom; in += kBlock) {
    const __m256i units = kIsBig ? bytesSwapped(load(in)) : load(in);
    if (haveNone(units, 0xFF80)) {
      out = putAscii(units, out);
    } else if (haveNone(units, 0xF800)) {
      out = putBelow800(units, out);
    } else if (!haveSurrogate(units)) {
      out = putAny(_mm256_castsi256_si128(units), out);
      out = putAny(_mm256_extracti128_si256(units, 1), out);
    } else {
      break;
    }
  }
  return {in, out};
}

}  // namespace

[[ORVANTA_AVX2]] Transcoded utf16LittleBlocksToUtf8(const char* in, const char* inEnd, char* out,
                                                    const char* outEnd) noexcept {
  return toUtf8<false>(in, inEnd, out, outEnd);
}

[[ORVANTA_AVX2]] Transcoded utf16BigBlocksToUtf8(const char* in, const char* inEnd, char* out,
                                                 const char* outEnd) noexcept {
  return toUtf8<true>(in, inEnd, out, outEnd);
}

}  // namespace orvanta::strings::avx2

#endif
