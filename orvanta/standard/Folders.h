#pragma once

#include <optional>
#include <string>
#include <vector>

#include <orvanta/platform/FileManager.h>

namespace orvanta::standard {

struct FolderEntry {
  std::string name;
  bool isDirectory;  ///< A symbolic link to a folder is none.
};

enum class FinalLink { follow, refuse };

/// The entries of a folder but "." and "..", in the file system's order. Absent when it cannot be
/// listed. `link` says whether `path` itself may be a symbolic link.
[[nodiscard]] std::optional<std::vector<FolderEntry>> listFolder(const std::string& path,
                                                                 FinalLink link);

/// Removes what is at `path`, a folder with everything in it, and stops at the first failure.
///
/// No link is ever followed, not even one that takes a folder's place meanwhile. Works at any
/// depth with two open files and no path longer than `path`.
[[nodiscard]] FileOutcome removeTree(const std::string& path);

}  // namespace orvanta::standard
