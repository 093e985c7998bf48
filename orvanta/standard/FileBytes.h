#pragma once

#include <cstdint>
#include <optional>

#include <orvanta/platform/FileManager.h>
#include <orvanta/strings/ReadBuffer.h>

namespace orvanta::standard {

/// Reads the file at `path`, whose size may have changed since it was `expectedSize`. Absent when
/// it cannot be read to its end or is larger than a string table may be. Throws `std::bad_alloc`.
[[nodiscard]] std::optional<strings::ReadBuffer> readWholeFile(platform::FileManager& files,
                                                               const String& path,
                                                               std::uint64_t expectedSize);

}  // namespace orvanta::standard
