#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/strings/ReadBuffer.h>
#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/probe/FileProbe.h>
#include <orvanta/strings/probe/PrefixSearches.h>
#include <orvanta/text/Memory.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::strings {

/// The longest common prefix of `keys` that can be probed for; empty when it is too short to be
/// worth probing.
[[nodiscard]] std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept;

/// Reads the few entries of strings files whose keys begin with one prefix, in a fraction of the
/// time of a full read (benchmark row startup-configured-first).
///
/// Used for one file after the other, by one thread at a time. Keeps its buffers for the next file,
/// as large as the largest file if the entries stand at the end of files, until `releaseMemory`.
class PrefixProbe {
 public:
  /// Opens the file at its start; null when it cannot be opened.
  using Opener = std::function<std::unique_ptr<ByteSource>()>;

  PrefixProbe();
  ~PrefixProbe();
  PrefixProbe(const PrefixProbe&) = delete;
  PrefixProbe& operator=(const PrefixProbe&) = delete;

  /// Of the table that `readStringTable` gives for the file, the entries whose keys begin with
  /// `prefix`, a result of `prefixToProbeFor`. Empty when it gives no table; null when the file
  /// cannot be read. `expectedSize` is a hint; the file may be opened twice. Throws
  /// `std::bad_alloc`.
  [[nodiscard]] std::shared_ptr<const StringTable> entries(const Opener& open,
                                                           std::uint64_t expectedSize,
                                                           std::string_view prefix);

  void releaseMemory() noexcept;

 private:
  [[nodiscard]] std::shared_ptr<const StringTable> entriesFromHead(ByteSource& file);
  [[nodiscard]] std::shared_ptr<const StringTable> entriesFromAll(ByteSource& file,
                                                                  std::uint64_t expectedSize);
  [[nodiscard]] std::shared_ptr<const StringTable> entriesAt(const FilePiece& head) const;
  [[nodiscard]] std::shared_ptr<const StringTable> restricted(
      const std::shared_ptr<const StringTable>& table) const;

  std::unique_ptr<PrefixSearches> searches_;
  std::unique_ptr<FileProbe> file_;  // Null when the file's form has no probe.
  Bytes window_;
  ReadBuffer whole_;
  // Whether the head of the last file was not enough. The files of an application are alike.
  bool needsAll_ = false;
};

}  // namespace orvanta::strings
