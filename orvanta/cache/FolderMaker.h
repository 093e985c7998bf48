#pragma once

#include <orvanta/platform/FileManager.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// Opens folders, making those that are missing. The entry of each folder that it makes is synced.
class FolderMaker {
 public:
  /// `files` must outlive this.
  explicit FolderMaker(platform::FileManager& files) : files_(files) {}

  /// The folder at an absolute path, through symbolic links also, and its missing parents.
  [[nodiscard]] platform::Folder::Opening open(const String& path);
  /// A sub-folder, never through a symbolic link.
  [[nodiscard]] platform::Folder::Opening open(platform::Folder& parent, const String& name);

  /// The first sync that failed, if any did: the new folder may not survive a loss of power.
  [[nodiscard]] const Status& syncStatus() const noexcept { return syncStatus_; }

 private:
  platform::FileManager& files_;
  Status syncStatus_;
};

}  // namespace orvanta
