#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/platform/Folder.h>
#include <orvanta/strings/ByteSource.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta::platform {

/// What is found at a path; `missing` when nothing is.
enum class ItemKind { missing, file, directory, symbolicLink, other };

/// Tells one state of a file from another without reading it: a file that was replaced, grew or
/// was written to again has another stamp.
struct FileStamp {
  std::uint64_t device;                  ///< The device that holds the file.
  std::uint64_t item;                    ///< The file's number on it.
  std::uint64_t size;                    ///< In bytes.
  std::int64_t modificationNanoseconds;  ///< Since the epoch.

  /// Equality of all members.
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A file open for reading, from its start. Closed with the object.
class ORVANTA_EXPORT ReadableFile : public strings::ByteSource {
 public:
  ~ReadableFile() override;

 protected:
  ReadableFile() = default;
  /// For implementations.
  ReadableFile(const ReadableFile&) = default;
  /// For implementations.
  ReadableFile& operator=(const ReadableFile&) = default;
};

/// What the library asks of the disk. Operations are single steps without policy, so that a
/// wrapper can make any one of them fail.
///
/// An absent path or URL is an item that does not exist. Paths are absolute and hold any bytes but
/// NUL. Implementations may be called from several threads at once.
class ORVANTA_EXPORT FileManager {
 public:
  virtual ~FileManager();

  /// The folder in which this application, and no other, may keep what can be made again. It need
  /// not be there yet. Absent when there is no such place.
  [[nodiscard]] virtual URL cachesDirectoryURL() = 0;

  /// Whether `path` leads to anything, links followed.
  [[nodiscard]] virtual bool fileExistsAtPath(const String& path) = 0;
  /// What is at `path` itself: a symbolic link is not followed.
  [[nodiscard]] virtual ItemKind itemKindAtPath(const String& path) = 0;
  /// The stamp of what `path` leads to, links followed; absent when it leads to no regular file.
  [[nodiscard]] virtual std::optional<FileStamp> stampOfFileAtPath(const String& path) = 0;

  /// Opens a folder, through symbolic links also.
  [[nodiscard]] virtual Folder::Opening openFolder(const String& path) = 0;

  /// Opens a regular file; null when there is none or it may not be read.
  [[nodiscard]] virtual std::unique_ptr<ReadableFile> openFileForReading(const String& path) = 0;

  /// Removes the item, a folder with everything in it. A symbolic link is removed, not followed.
  /// The description of a failure names the item.
  virtual Status removeItemAtURL(const URL& url) = 0;

  /// What `contentsOfDirectoryAtURL` gives.
  struct Contents {
    std::vector<URL> entries;  ///< Empty unless `status` is ok.
    /// Why the folder could not be listed.
    Status status;
  };
  /// The entries of a folder, hidden ones included, not those of its sub-folders.
  [[nodiscard]] virtual Contents contentsOfDirectoryAtURL(const URL& url) = 0;

  /// Called with each entry.
  using EntryVisitor = std::function<void(const URL& entry, bool isDirectory)>;
  /// Visits everything below a folder, at any depth, but not what is hidden (its name begins with
  /// ".") nor what is below something hidden. Symbolic links are not followed and count as files.
  /// The order is the file system's. Fails when the folder cannot be listed; a sub-folder that
  /// cannot be is skipped, and makes this fail only when the system is out of descriptors or
  /// memory. An exception of `visit` ends the walk and reaches the caller.
  virtual Status enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) = 0;

 protected:
  FileManager() = default;
  /// For implementations.
  FileManager(const FileManager&) = default;
  /// For implementations.
  FileManager& operator=(const FileManager&) = default;
};

}  // namespace orvanta::platform
