#pragma once

#include <memory>
#include <string>

#include <dirent.h>

#include <orvanta/platform/Folder.h>
#include <orvanta/standard/FileDescriptor.h>

namespace orvanta::standard {

enum class FinalLink { follow, refuse };

/// Opens a folder, which `path` names from the open folder `at` unless it is absolute. Closed, with
/// errno, when that fails. `link` says whether the last part of `path` may be a symbolic link.
[[nodiscard]] FileDescriptor openDirectory(int at, const std::string& path, FinalLink link);

struct CloseDirectory {
  void operator()(DIR* directory) const noexcept { ::closedir(directory); }
};
/// Reads the entries of a folder.
using DirectoryStream = std::unique_ptr<DIR, CloseDirectory>;

/// Null, with errno, when `folder` is not open or cannot be listed.
[[nodiscard]] DirectoryStream openDirectoryStream(FileDescriptor folder);

/// The entries of an open folder except "." and "..".
[[nodiscard]] platform::Folder::Listing listDirectory(FileDescriptor folder);

}  // namespace orvanta::standard
