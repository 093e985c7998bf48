#pragma once

#include <memory>
#include <string>

#include <orvanta/platform/FileManager.h>

namespace orvanta::standard {

/// Opens a regular file. Null for anything else, without waiting for a FIFO or a device.
[[nodiscard]] std::unique_ptr<platform::ReadableFile> openForReading(const std::string& path);

/// The steps of `platform::Folder` on files, for the open folder `folder`. A file is locked with
/// flock; on a file system without locks it is written all the same, and never removed as unlocked.
[[nodiscard]] platform::Folder::Creation createLockedFile(int folder, const std::string& name);
Status removeUnlessLocked(int folder, const std::string& name);

}  // namespace orvanta::standard
