#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <orvanta/platform/FileManager.h>
#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/probe/PrefixProbe.h>

namespace orvanta::standard {

/// Which file a table was read from, and its stamp then.
struct FileState {
  String path;                               ///< Absent where there was no file.
  std::optional<platform::FileStamp> stamp;  ///< Absent where there was no regular file.
  /// The modification time is so recent that another write may leave the same stamp.
  bool isRacy = false;

  [[nodiscard]] static FileState of(platform::FileManager& files, String path);

  friend bool operator==(const FileState& a, const FileState& b) noexcept {
    return a.path == b.path && a.stamp == b.stamp;
  }
};

/// Reads one string table of a bundle, and can tell later whether the file has changed since.
class TableFile {
 public:
  TableFile(std::shared_ptr<platform::FileManager> files,
            std::shared_ptr<strings::PrefixProbe> probe)
      : files_(std::move(files)), probe_(std::move(probe)) {}

  /// Reads the table from `path`, absent for no file. What is missing, unreadable or no table gives
  /// an empty table; never null. Throws `std::bad_alloc`, and is then as if it had not been called.
  [[nodiscard]] std::shared_ptr<const strings::StringTable> read(const String& path);

  /// The entries of the table at `path` whose keys begin with `prefix`, which `prefixToProbeFor`
  /// gave. Reads them without making the table, and then answers from memory until `reset`; never
  /// null.
  [[nodiscard]] std::shared_ptr<const strings::StringTable> entriesWithPrefix(
      std::string_view prefix, const String& path);

  /// Whether anything is known of the file.
  [[nodiscard]] bool wasRead() const noexcept { return state_.has_value(); }

  /// Whether reading from `path` might give something else now than it gave last. Something must
  /// have been read.
  [[nodiscard]] bool hasChanged(const String& path);

  /// Forgets what is known of the file.
  void reset() noexcept;

 private:
  [[nodiscard]] bool isSameContent(const FileState& now) const;

  std::shared_ptr<platform::FileManager> files_;
  std::shared_ptr<strings::PrefixProbe> probe_;
  std::optional<FileState> state_;            // At the last reading; absent before the first.
  std::optional<std::uint64_t> contentHash_;  // Where the stamp alone does not do.
  std::string prefix_;
  std::shared_ptr<const strings::StringTable>
      entries_;  // Null unless those of `prefix_` are known.
};

}  // namespace orvanta::standard
