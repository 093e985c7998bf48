#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>

#include <orvanta/strings/ByteSource.h>

namespace orvanta::strings {

/// A file of this size or more is not read as a string table.
inline constexpr std::uint64_t kTooLargeFile = std::numeric_limits<std::uint32_t>::max();

/// Reads on until `buffer` is full or the file ends. The number of bytes read, less than there is
/// room for only at the end; absent when reading failed.
[[nodiscard]] inline std::optional<std::size_t> readFully(ByteSource& file,
                                                          std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const std::optional<std::size_t> count = file.read(buffer.subspan(filled));
    if (!count) {
      return std::nullopt;
    }
    if (*count == 0) {
      break;
    }
    filled += *count;
  }
  return filled;
}

}  // namespace orvanta::strings
