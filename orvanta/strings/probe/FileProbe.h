#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/strings/StringTableBuilder.h>

namespace orvanta::strings {

/// A piece of a file that is read piece by piece.
struct FilePiece {
  std::string_view bytes;
  std::size_t offset = 0;  ///< In the file.
  bool isLast = false;
};

/// Reads the entries whose keys begin with a prefix from one file of a known form.
class FileProbe {
 public:
  virtual ~FileProbe() = default;
  FileProbe(const FileProbe&) = delete;
  FileProbe& operator=(const FileProbe&) = delete;

  /// Searches one piece. Each piece begins where the previous one begins, or at least
  /// `kLargestOverlap` bytes before its end, at an even offset.
  virtual void look(const FilePiece& piece) = 0;

  static constexpr std::size_t kLargestOverlap = 256;

  /// Adds the entries, after the last piece was searched. `head` is the beginning of the file, or
  /// all of it. May add other entries, too. False when more of the file or a full read is needed;
  /// what was added then is unspecified.
  [[nodiscard]] virtual bool addEntries(const FilePiece& head, StringTableBuilder& table) = 0;

 protected:
  FileProbe() = default;
};

}  // namespace orvanta::strings
