#pragma once

#include <orvanta/strings/encoding/avx2/Vectors.h>

#ifdef ORVANTA_HAS_AVX2

namespace orvanta::strings::avx2 {

/// Whether the bytes from `at` to `end`, a multiple of 64, can stand where they do in valid UTF-8,
/// given the three bytes before `at`. A character may be cut off at the end.
[[nodiscard]] bool areValidUtf8Blocks(const unsigned char* at, const unsigned char* end) noexcept;

}  // namespace orvanta::strings::avx2

#endif
