#pragma once

#include <orvanta/platform/FileManager.h>

#include <memory>
#include <string>

namespace orvanta::platform::standard {

/// Opens a regular file and nothing else: a FIFO or a device neither blocks nor is read.
[[nodiscard]] std::unique_ptr<ReadableFile> openForReading(const std::string& path);

/// Makes a new file; never opens what is there already.
[[nodiscard]] FileManager::Creation createForWriting(const std::string& path);

}  // namespace orvanta::platform::standard
