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

/// What a file looked like when it was read.
struct FileSighting {
  String path;                               ///< Absent where there was no file.
  std::optional<platform::FileStamp> stamp;  ///< Absent where there was no regular file.
  /// Nobody can have written to the file after this sighting without changing its stamp.
  bool isSettled = true;

  [[nodiscard]] static FileSighting of(platform::FileManager& files, String path);

  friend bool operator==(const FileSighting& a, const FileSighting& b) noexcept {
    return a.path == b.path && a.stamp == b.stamp;
  }
};

/// One string table of a bundle, read from its file when it is first asked for.
class TableFile {
 public:
  TableFile(std::shared_ptr<platform::FileManager> files,
            std::shared_ptr<strings::PrefixProbe> probe)
      : files_(std::move(files)), probe_(std::move(probe)) {}

  /// The table, null as long as it was not read.
  [[nodiscard]] const strings::StringTable* loaded() const noexcept { return table_.get(); }

  /// Reads the table from `path`, absent for no file. What is missing or unreadable is empty.
  const strings::StringTable& load(const String& path);

  /// True when it was found out, without reading the table, that no key of it begins with `prefix`
  /// (see PrefixProbe.h).
  [[nodiscard]] bool isKnownToLack(std::string_view prefix) const noexcept {
    return !prefix.empty() && lackedPrefix_ == prefix;
  }
  /// Tries to find that out for the file at `path`.
  bool findOutWhetherItLacks(std::string_view prefix, const String& path);

  /// Nothing is known of the file: there is nothing to check again.
  [[nodiscard]] bool isUntouched() const noexcept {
    return table_ == nullptr && lackedPrefix_.empty();
  }
  /// Forgets what is known unless a reading of `path` would give the same now.
  void checkAgain(const String& path);

 private:
  [[nodiscard]] bool stillHolds(const FileSighting& now) const;
  void forget() noexcept;

  std::shared_ptr<platform::FileManager> files_;
  std::shared_ptr<strings::PrefixProbe> probe_;
  std::shared_ptr<const strings::StringTable> table_;
  FileSighting sighting_;
  std::uint64_t contentHash_ = 0;
  std::string lackedPrefix_;
};

}  // namespace orvanta::standard
