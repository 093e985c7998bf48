#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/text/Memory.h>

namespace orvanta::standard {

/// The bytes of a whole file.
struct FileBytes {
  Bytes data;
  std::size_t size = 0;

  [[nodiscard]] std::string_view view() const noexcept { return {data.get(), size}; }
};

/// Reads the file at `path`, whose size may have changed since it was `expectedSize`. Absent when
/// it cannot be read to its end or is larger than a string table may be. Throws `std::bad_alloc`.
[[nodiscard]] std::optional<FileBytes> readWholeFile(platform::FileManager& files,
                                                     const String& path,
                                                     std::uint64_t expectedSize);

}  // namespace orvanta::standard
