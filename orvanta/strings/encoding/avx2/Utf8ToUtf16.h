#pragma once

#include <orvanta/strings/encoding/Utf8Repair.h>
#include <orvanta/strings/encoding/Utf8ToUtf16.h>
#include <orvanta/strings/encoding/avx2/Vectors.h>

#ifdef ORVANTA_HAS_AVX2

namespace orvanta::strings::avx2 {

/// Converts blocks of sixteen bytes of valid UTF-8 to UTF-16, little-endian: the characters that
/// begin in them. `in` must be the beginning of a character, and so is where it stops: before a
/// block in which a character of four bytes begins, and when less than a block and two bytes are
/// left. What it has written needs at most twice the room, but it may overwrite `kUtf16Slack`
/// bytes more.
[[nodiscard]] Transcoded utf8BlocksToUtf16Little(const char* in, const char* inEnd,
                                                 char* out) noexcept;

}  // namespace orvanta::strings::avx2

#endif
