#pragma once

#include <memory>
#include <string>

#include <orvanta/platform/FileManager.h>

namespace orvanta::standard {

/// Opens a regular file and nothing else: a FIFO or a device neither blocks nor is read.
[[nodiscard]] std::unique_ptr<platform::ReadableFile> openForReading(const std::string& path);

/// Makes a new file; never opens what is there already. It is in use as long as it is open: a lock
/// (flock), which ends with the process at the latest, says so to every other process.
[[nodiscard]] platform::FileManager::Creation createForWriting(const std::string& path);

/// Removes a file that `createForWriting` made, unless it is in use: that counts as success. Where
/// the file system knows no locks nobody can tell, and the file stays.
[[nodiscard]] FileOutcome removeUnlessInUse(const std::string& path);

}  // namespace orvanta::standard
