#include <algorithm>
#include <span>

#include <orvanta/strings/StringTable.h>

namespace orvanta::strings {

std::string_view StringTable::findBehind(std::size_t at, const HashedKey& key) const noexcept {
  for (at = slotBehind(at); index_[at] != kFree; at = slotBehind(at)) {
    if (mayHoldSameKey(index_[at], key.hash)) {
      const auto [candidate, text] = entryAt(offsetIn(index_[at]));
      if (candidate == key.text) {
        return text;
      }
    }
  }
  return {};
}

std::vector<StringTable::Entry> StringTable::entries() const {
  std::vector<std::size_t> offsets;
  offsets.reserve(size_);
  for (const Slot slot : std::span(index_, slotCount_)) {
    if (slot != kFree) {
      offsets.push_back(offsetIn(slot));
    }
  }
  std::sort(offsets.begin(), offsets.end());
  std::vector<Entry> entries;
  entries.reserve(offsets.size());
  for (const std::size_t offset : offsets) {
    entries.push_back(entryAt(offset));
  }
  return entries;
}

std::size_t StringTable::heapBytes() const noexcept {
  return sizeof(StringTable) + arena_.size();
}

}  // namespace orvanta::strings
