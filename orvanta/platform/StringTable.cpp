#include <algorithm>
#include <limits>

#include <orvanta/platform/StringTable.h>

namespace orvanta::platform {

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
  return sizeof(StringTable) + arena_.size() + (slots_ == nullptr ? 0 : slotCount_ * sizeof(Slot));
}

void StringTable::fillIndex(std::span<const Slot> records) {
  // Misses are the faster the emptier an index is, but one that passes the caches had better be
  // small.
  const std::size_t slotsForEach = records.size() < 50'000 ? 3 : 2;
  slotCount_ = static_cast<std::uint32_t>(std::min<std::size_t>(
      slotsForEach * records.size(), std::numeric_limits<std::uint32_t>::max()));
  slots_ = std::make_unique_for_overwrite<Slot[]>(slotCount_);
  std::fill_n(slots_.get(), slotCount_, kFree);
  index_ = slots_.get();
  const auto haveOneKey = [this](Slot a, Slot b) {
    return mayHoldSameKey(a, b) && entryAt(offsetIn(a)).key == entryAt(offsetIn(b)).key;
  };
  for (const Slot record : records) {
    std::size_t at = homeSlot(record, slotCount_);
    while (slots_[at] != kFree && !haveOneKey(slots_[at], record)) {
      at = at + 1 == slotCount_ ? 0 : at + 1;
    }
    size_ += slots_[at] == kFree ? 1 : 0;
    slots_[at] = record;
  }
}

}  // namespace orvanta::platform
