#pragma once

#include <cstddef>

#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

/// Where a conversion stopped in its input and in its output.
struct Transcoded {
  const char* in;
  char* out;
};

/// The U+FFFD that a conversion wrote for invalid input.
struct Replacements {
  std::size_t count = 0;
  const char* first = nullptr;  ///< In the output.

  /// Writes one and returns its end.
  char* put(char* out) noexcept {
    first = count == 0 ? out : first;
    ++count;
    return utf8::encode(utf8::kReplacement, out);
  }
};

/// Copies UTF-8 and writes U+FFFD for invalid sequences. Stops when less than `utf8::kLongest`
/// bytes of room are left. The output is at most three times as long as the input.
[[nodiscard]] Transcoded repairUtf8(const char* in, const char* inEnd, char* out,
                                    const char* outEnd, Replacements& replacements) noexcept;

}  // namespace orvanta::strings
