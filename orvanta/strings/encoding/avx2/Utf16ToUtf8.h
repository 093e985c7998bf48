#pragma once

#include <orvanta/strings/encoding/Utf16ToUtf8.h>
#include <orvanta/strings/encoding/avx2/Vectors.h>

#ifdef ORVANTA_HAS_AVX2

namespace orvanta::strings::avx2 {

/// Converts blocks of sixteen units to UTF-8. Stops before a block with a surrogate, and when less
/// than a block or less than `kUtf16Room` bytes of room are left. May overwrite all of the room.
[[nodiscard]] Transcoded utf16LittleBlocksToUtf8(const char* in, const char* inEnd, char* out,
                                                 const char* outEnd) noexcept;
[[nodiscard]] Transcoded utf16BigBlocksToUtf8(const char* in, const char* inEnd, char* out,
                                              const char* outEnd) noexcept;

}  // namespace orvanta::strings::avx2

#endif
