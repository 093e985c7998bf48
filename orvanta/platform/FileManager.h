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
#include <orvanta/strings/ByteSink.h>
#include <orvanta/strings/ByteSource.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta::platform {

enum class ItemKind { missing, file, directory, symbolicLink, other };

/// Tells one state of a file from another without reading it: a file that was replaced, grew or
/// was written to again has another stamp.
struct FileStamp {
  std::uint64_t device;
  std::uint64_t item;
  std::uint64_t size;                    ///< In bytes.
  std::int64_t modificationNanoseconds;  ///< Since the epoch.

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A file open for reading, from its start. Closed with the object.
class ORVANTA_EXPORT ReadableFile : public strings::ByteSource {
 public:
  ~ReadableFile() override;

 protected:
  ReadableFile() = default;
  ReadableFile(const ReadableFile&) = default;
  ReadableFile& operator=(const ReadableFile&) = default;
};

/// A new file open for writing. Closed with the object; only `close` tells whether that worked.
class ORVANTA_EXPORT WritableFile : public strings::ByteSink {
 public:
  ~WritableFile() override;
  /// Succeeds once what was written would survive a loss of power.
  [[nodiscard]] virtual FileOutcome sync() = 0;
  [[nodiscard]] virtual FileOutcome close() = 0;

 protected:
  WritableFile() = default;
  WritableFile(const WritableFile&) = default;
  WritableFile& operator=(const WritableFile&) = default;
};

/// What the library asks of the disk. Operations are single steps without policy, so that a
/// wrapper can make any one of them fail.
///
/// An absent path or URL is an item that does not exist. Paths are absolute and hold any bytes but
/// NUL. Implementations may be called from several threads at once.
class ORVANTA_EXPORT FileManager {
 public:
  virtual ~FileManager();

  /// The folder in which this application, and no other, may keep what can be made again; made if
  /// it is not there. Absent when there is no such place.
  [[nodiscard]] virtual URL cachesDirectoryURL() = 0;

  [[nodiscard]] virtual bool fileExistsAtPath(const String& path) = 0;
  /// What is at `path` itself: a symbolic link is not followed.
  [[nodiscard]] virtual ItemKind itemKindAtPath(const String& path) = 0;
  /// The stamp of what `path` leads to, links followed; absent when it leads to no regular file.
  [[nodiscard]] virtual std::optional<FileStamp> stampOfFileAtPath(const String& path) = 0;

  /// Makes the folder and its missing parents; succeeds when it is there already.
  [[nodiscard]] virtual FileOutcome createDirectoryAtURL(const URL& url) = 0;
  /// Removes the item, a folder with everything in it. A symbolic link is removed, not followed.
  [[nodiscard]] virtual FileOutcome removeItemAtURL(const URL& url) = 0;

  /// The entries of a folder, hidden ones included, not those of its sub-folders. None when it
  /// cannot be listed.
  [[nodiscard]] virtual std::vector<URL> contentsOfDirectoryAtURL(const URL& url) = 0;

  using EntryVisitor = std::function<void(const URL& entry, bool isDirectory)>;
  /// Visits everything below a folder, at any depth, but not what is hidden (its name begins with
  /// ".") nor what is below something hidden. Symbolic links are not followed and count as files.
  /// What cannot be read is skipped. The order is the file system's.
  virtual void enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) = 0;

  /// Opens a regular file; absent when there is none or it may not be read.
  [[nodiscard]] virtual std::unique_ptr<ReadableFile> openFileForReading(const String& path) = 0;

  struct Creation {
    std::unique_ptr<WritableFile> file;  ///< Absent when the file could not be made.
    FileOutcome outcome;
  };
  /// Makes a new file; fails when anything is at `path` already, a dangling link included. The file
  /// is in use until its object goes or the process ends, however it ends.
  [[nodiscard]] virtual Creation createFile(const String& path) = 0;
  /// Removes a file that `createFile` made, unless it is still in use, by whatever process: then it
  /// stays, and that is no failure.
  [[nodiscard]] virtual FileOutcome removeFileUnlessInUse(const String& path) = 0;
  /// Puts the item `from` in the place of `to` in one step: whoever looks sees the old or the new.
  [[nodiscard]] virtual FileOutcome moveItemReplacing(const String& from, const String& to) = 0;
  /// Succeeds once the names in the folder would survive a loss of power.
  [[nodiscard]] virtual FileOutcome syncDirectory(const String& path) = 0;

 protected:
  FileManager() = default;
  FileManager(const FileManager&) = default;
  FileManager& operator=(const FileManager&) = default;
};

}  // namespace orvanta::platform
