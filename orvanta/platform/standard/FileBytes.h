#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include <orvanta/platform/FileManager.h>

namespace orvanta::platform::standard {

/// Memory aligned to a line of the cache: systems copy files faster to there.
struct AlignedDelete {
  void operator()(char* bytes) const noexcept;
};
using AlignedBytes = std::unique_ptr<char[], AlignedDelete>;

/// Not initialized; null when there is not so much memory.
[[nodiscard]] AlignedBytes allocateAligned(std::size_t size) noexcept;

/// The bytes of a whole file.
struct FileBytes {
  AlignedBytes data;
  std::size_t size = 0;

  [[nodiscard]] std::string_view view() const noexcept { return {data.get(), size}; }
};

/// Reads the file at `path`, which had `expectedSize` bytes a moment ago. Absent when it cannot be
/// read to its end, and when it is larger than any string table can be.
[[nodiscard]] std::optional<FileBytes> readWholeFile(FileManager& files, const String& path,
                                                     std::uint64_t expectedSize);

}  // namespace orvanta::platform::standard
