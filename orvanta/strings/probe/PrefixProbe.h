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

/// The longest prefix that all of `keys` share and that can be probed for; empty when it would be
/// too short to be worth it.
[[nodiscard]] std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept;

/// Reads of strings files the few entries whose keys begin with one prefix, in a fraction of the
/// time that reading a whole file takes. Row startup-configured-first.
///
/// Used for one file after the other, from one thread at a time. Keeps its memory until told to
/// free it: as much as the largest file if entries stand at the end of files.
class PrefixProbe {
 public:
  /// Opens the file, from its start; null when it cannot be opened.
  using Opener = std::function<std::unique_ptr<ByteSource>()>;

  PrefixProbe();
  ~PrefixProbe();
  PrefixProbe(const PrefixProbe&) = delete;
  PrefixProbe& operator=(const PrefixProbe&) = delete;

  /// Those entries of the table that `readStringTable` gives for the file whose keys begin with
  /// `prefix`, which `prefixToProbeFor` gave; none when it gives no table. Null when the file
  /// cannot be read. Its size may have changed since it was `expectedSize`; it may be opened twice.
  /// Throws `std::bad_alloc`.
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
  std::unique_ptr<FileProbe> file_;  // Null when there is none for its form.
  Bytes window_;
  ReadBuffer whole_;
  // The head of the last file did not do. The files of an application are alike.
  bool needsAll_ = false;
};

}  // namespace orvanta::strings
