#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/platform/String.h>
#include <orvanta/platform/TextHash.h>

namespace orvanta::platform::standard {

/// One language's texts under their keys, read once and never changed.
///
/// Layout: all keys and values stand in one arena, each entry a record
///
///     key length (4 bytes) | value length (4 bytes) | key | value
///
/// so that the bytes a lookup compares and the text it hands out lie side by side. The index is
/// an array of 8-byte slots, at most half of them used, probed one after the other; a slot holds
/// the high half of the key's hash and where the record stands. A text that is handed out shares
/// the arena: it stays valid when the table goes.
///
/// Reading one table from several threads is safe.
class ORVANTA_EXPORT StringTable {
 public:
  struct Entry {
    std::string_view key;
    std::string_view value;
  };

  /// An empty table.
  StringTable() = default;

  /// The text under `key`, absent when there is none. Never allocates.
  [[nodiscard]] String textForKey(const HashedKey& key) const noexcept;

  [[nodiscard]] std::size_t size() const noexcept { return size_; }

  /// The entries in the order of the statements that hold. The views live as long as the table.
  [[nodiscard]] std::vector<Entry> entries() const;

  /// Bytes of heap that the table holds on to.
  [[nodiscard]] std::size_t heapBytes() const noexcept;

 private:
  friend class StringTableBuilder;

  void fillIndex(std::span<const std::uint64_t> records);

  std::shared_ptr<const char> arena_;
  std::unique_ptr<std::uint64_t[]> slots_;
  std::uint32_t slotCount_ = 0;
  std::uint32_t arenaSize_ = 0;
  std::size_t size_ = 0;
};

/// Fills a table. Of a key that is added twice the last value holds.
class ORVANTA_EXPORT StringTableBuilder {
 public:
  /// `expectedBytes` is a guess at the sum of all keys and values; too little costs a copy.
  explicit StringTableBuilder(std::size_t expectedBytes = 0);
  ~StringTableBuilder();
  StringTableBuilder(const StringTableBuilder&) = delete;
  StringTableBuilder& operator=(const StringTableBuilder&) = delete;

  /// Adds an entry, or gives false where the table would pass 4 GiB.
  bool add(std::string_view key, std::string_view value);

  /// Room for one entry, into which the caller writes the key and right behind it the value, at
  /// most `bytes` together. Absent where the table would pass 4 GiB. What was written counts only
  /// with `commitEntry`; any other call takes the room back.
  [[nodiscard]] char* beginEntry(std::size_t bytes) {
    if (bytes > capacity_ - used_ || kHeader > capacity_ - used_ - bytes) {
      if (bytes > kLargestArena - kHeader || !reserve(kHeader + bytes)) {
        return nullptr;
      }
    }
    return arena_ + used_ + kHeader;
  }
  void commitEntry(std::size_t keySize, std::size_t valueSize) {
    const std::uint32_t lengths[2] = {static_cast<std::uint32_t>(keySize),
                                      static_cast<std::uint32_t>(valueSize)};
    char* start = arena_ + used_;
    std::memcpy(start, lengths, kHeader);
    slots_.push_back((textHash({start + kHeader, keySize}) & kHashMask) | used_);
    used_ += kHeader + keySize + valueSize;
  }

  /// The table; the builder is empty afterwards.
  [[nodiscard]] std::shared_ptr<const StringTable> build();

 private:
  static constexpr std::size_t kHeader = 2 * sizeof(std::uint32_t);
  static constexpr std::size_t kLargestArena = std::numeric_limits<std::uint32_t>::max();
  static constexpr std::uint64_t kHashMask = 0xFFFFFFFF00000000;

  [[nodiscard]] bool reserve(std::size_t more);

  char* arena_ = nullptr;
  std::size_t used_ = 0;
  std::size_t capacity_ = 0;
  std::vector<std::uint64_t> slots_;  // As the index holds them, in the order of adding.
};

}  // namespace orvanta::platform::standard
