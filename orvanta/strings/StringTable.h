#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::strings {

class StringTableBuilder;

/// One language's texts under their keys, read once and never changed.
///
/// Layout: all keys and values stand in one arena, each entry a record
///
///     key length (4 bytes) | value length (4 bytes) | key | value
///
/// so that the bytes that a look-up compares and the text that it returns are adjacent. The index
/// follows in the same block: an open-addressing hash table with linear probing of 8-byte slots, at
/// most a third full, half in a large table. A slot holds the high half of the key's hash and the
/// offset of the record. Returned texts share the arena and stay valid when the table is destroyed.
///
/// Reading one table from several threads is safe.
class ORVANTA_EXPORT StringTable {
 public:
  /// A key and its text.
  struct Entry {
    /// UTF-8.
    std::string_view key;
    /// UTF-8.
    std::string_view value;
  };

  /// An empty table.
  StringTable() = default;

  /// The text under `key`, absent when there is none. Never allocates.
  [[nodiscard]] String textForKey(const HashedKey& key) const noexcept {
    const std::string_view text = find(key);
    return text.data() == nullptr ? String() : handleTo(text);
  }

  /// The same as a view, with null data when there is none; `handleTo` makes the handle. For
  /// callers that ask several tables and need one handle in the end.
  [[nodiscard]] std::string_view find(const HashedKey& key) const noexcept ORVANTA_LIFETIME_BOUND;
  /// The handle to what `find` found, which must be this table's.
  [[nodiscard]] String handleTo(std::string_view found) const noexcept {
    return arena_.part(found);
  }

  /// The number of entries.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }

  /// The entries, one for each key, in the order of their statements in the file. The views live as
  /// long as the table.
  [[nodiscard]] std::vector<Entry> entries() const;

  /// The heap memory that the table occupies, in bytes.
  [[nodiscard]] std::size_t heapBytes() const noexcept;

 private:
  friend class StringTableBuilder;

  using Slot = std::uint64_t;

  static constexpr std::size_t kHeader = 2 * sizeof(std::uint32_t);
  static constexpr Slot kFree = std::numeric_limits<Slot>::max();
  static constexpr Slot kHashMask = 0xFFFFFFFF00000000;

  // The offset of a slot's record in the arena.
  static std::size_t offsetIn(Slot slot) noexcept { return slot & ~kHashMask; }
  static bool mayHoldSameKey(Slot slot, std::uint64_t hash) noexcept {
    return ((slot ^ hash) & kHashMask) == 0;
  }

  // The first slot to probe for a key: the hash's high half, scaled to the number of slots. Keys in
  // neighbouring slots agree in the upper bits of that half; its lower bits, which the slot stores,
  // distinguish all but a few in a million.
  static std::size_t homeSlot(std::uint64_t hash, std::uint32_t slotCount) noexcept {
    return static_cast<std::size_t>(((hash >> 32) * slotCount) >> 32);
  }

  [[nodiscard]] std::size_t slotBehind(std::size_t at) const noexcept {
    return at + 1 == slotCount_ ? 0 : at + 1;
  }

  // Continues a search behind a slot that has the key's hash but another key.
  [[nodiscard]] std::string_view findBehind(std::size_t at, const HashedKey& key) const noexcept;

  [[nodiscard]] Entry entryAt(std::size_t offset) const noexcept {
    const char* const record = arena_.view().data() + offset;
    std::uint32_t lengths[2];
    std::memcpy(lengths, record, kHeader);
    return {{record + kHeader, lengths[0]}, {record + kHeader + lengths[0], lengths[1]}};
  }

  static constexpr Slot kEmptyIndex[1] = {kFree};

  String arena_;
  const Slot* index_ = kEmptyIndex;
  std::uint32_t slotCount_ = 1;
  std::size_t size_ = 0;
};

// Inline: a look-up consists of this, and takes half the time without calls. A slot with the key's
// hash almost always has the key.
inline std::string_view StringTable::find(const HashedKey& key) const noexcept {
  std::size_t at = homeSlot(key.hash, slotCount_);
  const Slot* const index = index_;
  for (;;) {
    if (index[at] == kFree) {
      return {};
    }
    if (mayHoldSameKey(index[at], key.hash)) [[likely]] {
      break;
    }
    at = slotBehind(at);
  }
  const auto [candidate, text] = entryAt(offsetIn(index[at]));
  // `memcmp` branches on the length. The key's is known; the candidate's has to be loaded first.
  const bool isSame = candidate.size() == key.text.size() &&
                      std::memcmp(candidate.data(), key.text.data(), key.text.size()) == 0;
  return isSame ? text : findBehind(at, key);
}

}  // namespace orvanta::strings
