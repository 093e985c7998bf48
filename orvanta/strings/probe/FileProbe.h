#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/strings/StringTableBuilder.h>

namespace orvanta::strings {

/// A part of a file that comes in piece by piece.
struct FilePiece {
  std::string_view bytes;
  std::size_t offset = 0;  ///< In the file.
  bool isLast = false;
};

/// Reads the entries whose keys begin with a prefix out of one file of a known form.
class FileProbe {
 public:
  virtual ~FileProbe() = default;
  FileProbe(const FileProbe&) = delete;
  FileProbe& operator=(const FileProbe&) = delete;

  /// Searches one piece after the other. Each begins where the one before begins, or at least
  /// `kLargestOverlap` bytes before its end, at an even offset.
  virtual void look(const FilePiece& piece) = 0;

  static constexpr std::size_t kLargestOverlap = 256;

  /// Adds the entries, after a look at the last piece. `head` is the beginning of the file, or all
  /// of it. The probe may add other entries, too. False, with anything added, when more of the file
  /// is needed, or a full read.
  [[nodiscard]] virtual bool addEntries(const FilePiece& head, StringTableBuilder& table) = 0;

 protected:
  FileProbe() = default;
};

}  // namespace orvanta::strings
