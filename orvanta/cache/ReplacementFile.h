#pragma once

#include <memory>

#include <orvanta/platform/Folder.h>
#include <orvanta/strings/ByteSink.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// How the replacement of a file ended.
struct Replacement {
  /// Whether the new file is in place. When `status` is a failure, it may then be lost, and the old
  /// file return, with a loss of power.
  bool isInPlace = false;
  Status status;
};

/// A new file that takes the place of another in one step. At any moment, also after a crash or a
/// loss of power, a reader finds the whole old file or the whole new one: the new file has a name
/// of its own, hidden from the catalogue, until it is synced and renamed.
class ReplacementFile {
 public:
  /// Replaces the file `name` of `folder`, which must outlive this.
  ReplacementFile(platform::Folder& folder, String name);
  /// Removes the new file unless it is in place.
  ~ReplacementFile();
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  /// Whether there is a new file to write to.
  [[nodiscard]] const Status& creation() const noexcept { return creation_.status; }
  /// `creation` must be ok.
  [[nodiscard]] strings::ByteSink& contents() noexcept { return *creation_.file; }

  /// Puts what was written in place. Called once at most, when `creation` is ok.
  [[nodiscard]] Replacement commit();

 private:
  platform::Folder& folder_;
  String name_;
  String temporaryName_;
  platform::Folder::Creation creation_;
  bool isInPlace_ = false;
};

/// Removes what replacements that were interrupted have left in the folder. A file that another
/// process still writes is locked and stays.
void removeAbandonedReplacements(platform::Folder& folder);

}  // namespace orvanta
