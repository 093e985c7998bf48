#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <orvanta/strings/StringTable.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::strings {

/// Builds a table. When a key is added several times, the last value wins; a tentative entry loses
/// to any other entry with its key.
class StringTableBuilder {
 public:
  /// What is going to be added. Memory is reserved for so much; where it is too little, the arena
  /// is reallocated.
  struct Expected {
    std::size_t entries = 0;
    std::size_t bytes = 0;  ///< Of all keys and values together, and eight for each entry.

    /// Rarely too little for a file of this size.
    [[nodiscard]] static Expected inFile(std::size_t size) noexcept {
      constexpr std::size_t kShortEntry = 64;
      return {size / kShortEntry, size};
    }
  };

  explicit StringTableBuilder(const Expected& expected = {0, 0});
  ~StringTableBuilder();
  StringTableBuilder(const StringTableBuilder&) = delete;
  StringTableBuilder& operator=(const StringTableBuilder&) = delete;

  /// Adds an entry. False when the table would exceed 4 GiB.
  bool add(std::string_view key, std::string_view value);

  /// Room of `bytes` bytes for one entry: the caller writes the key and, directly behind it, the
  /// value. Null when the table would exceed 4 GiB. `commitEntry` adds the entry; any other call
  /// discards it.
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
    records_.push_back((textHash({start + kHeader, keySize}) & StringTable::kHashMask) | used_);
    used_ += kHeader + keySize + valueSize;
  }

  /// Makes the entry that was added last a tentative one.
  void makeLastTentative() {
    tentativeRecords_.push_back(records_.back());
    records_.pop_back();
  }

  /// The table, never null. The builder is empty afterwards.
  [[nodiscard]] std::shared_ptr<const StringTable> build();

 private:
  static constexpr std::size_t kHeader = StringTable::kHeader;
  static constexpr std::size_t kLargestArena = std::numeric_limits<std::uint32_t>::max();

  using Slot = StringTable::Slot;

  [[nodiscard]] bool reserve(std::size_t more);
  static void addToIndex(StringTable& table, std::span<Slot> index, std::span<const Slot> records);

  char* arena_ = nullptr;
  std::size_t used_ = 0;
  std::size_t capacity_ = 0;
  // In the order in which they were added.
  std::vector<Slot> records_;
  std::vector<Slot> tentativeRecords_;
};

}  // namespace orvanta::strings
