#pragma once

#include <memory>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/platform/WritableFile.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// An open folder. It stays the same folder when its path comes to lead elsewhere.
///
/// Operations are single steps without policy, so that a wrapper can make any one of them fail.
/// They take the name of an entry; one that is empty, "." or "..", or holds "/" or NUL, fails.
/// No symbolic link is followed.
class ORVANTA_EXPORT Folder {
 public:
  virtual ~Folder();

  /// What `openFolder` gives.
  struct Opening {
    std::unique_ptr<Folder> folder;  ///< Null unless `status` is ok.
    /// Why there is none.
    Status status;
  };
  /// Opens a sub-folder.
  [[nodiscard]] virtual Opening openFolder(const String& name) = 0;
  /// Makes a sub-folder; fails when there is an entry of that name.
  virtual Status createFolder(const String& name) = 0;

  /// One entry of the folder.
  struct Entry {
    String name;       ///< Within the folder.
    bool isDirectory;  ///< False for a symbolic link to one.
  };
  /// What `list` gives.
  struct Listing {
    std::vector<Entry> entries;  ///< Empty unless `status` is ok.
    /// Why the folder could not be listed.
    Status status;
  };
  /// All entries, hidden ones included, in the file system's order.
  [[nodiscard]] virtual Listing list() = 0;

  /// What `createFile` gives.
  struct Creation {
    std::unique_ptr<WritableFile> file;  ///< Null unless `status` is ok.
    /// Why there is none.
    Status status;
  };
  /// Makes a new file and locks it, without waiting, until its object goes or the process ends.
  /// Fails when there is an entry of that name, and (`resource_unavailable_try_again`) when another
  /// process locks or removes the new file first.
  [[nodiscard]] virtual Creation createFile(const String& name) = 0;
  /// Removes an entry that is not a folder.
  virtual Status removeFile(const String& name) = 0;
  /// Removes a file that `createFile` made. Succeeds without removing it while it is locked.
  virtual Status removeFileUnlessLocked(const String& name) = 0;
  /// Gives the entry `from` the name `to` in one step, replacing the entry that had it.
  virtual Status rename(const String& from, const String& to) = 0;
  /// Succeeds once the names in the folder would survive a loss of power.
  virtual Status sync() = 0;

 protected:
  Folder() = default;
  /// For implementations.
  Folder(const Folder&) = default;
  /// For implementations.
  Folder& operator=(const Folder&) = default;
};

}  // namespace orvanta::platform
