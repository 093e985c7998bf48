#pragma once

#include <cstddef>

// The compilers that can build one function for a processor that has AVX2 and ask for it at run
// time.
#if defined(__GNUC__) && defined(__x86_64__)
#define ORVANTA_HAS_UTF8_VECTORS
#endif

#ifdef ORVANTA_HAS_UTF8_VECTORS

namespace orvanta::strings {

/// Whether this processor has AVX2.
[[nodiscard]] bool hasWideVectors() noexcept;

/// Whether the bytes from `at` to `end`, a multiple of 64, can stand where they do in valid UTF-8,
/// given the three bytes before `at`. A character may be cut off at the end. Needs AVX2, and takes
/// 40 % of the time of the portable check (benchmark rows `load-utf8`, `load-500-utf8`).
[[nodiscard]] bool areValidBlocksWide(const unsigned char* at, const unsigned char* end) noexcept;

}  // namespace orvanta::strings

#endif
