#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <utility>

#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/text/Memory.h>

namespace orvanta::strings {

namespace {

constexpr std::size_t kMostSlotsForEach = 3;

}  // namespace

StringTableBuilder::StringTableBuilder(const Expected& expected) {
  records_.reserve(expected.entries);
  // The index is going to stand behind the entries.
  constexpr std::uint64_t kIndexForEach = kMostSlotsForEach * sizeof(Slot);
  const std::uint64_t all = expected.bytes + kIndexForEach * expected.entries;
  if (all <= kLargestArena && reserve(static_cast<std::size_t>(all))) {
    providePages(arena_, expected.bytes);
  }
}

StringTableBuilder::~StringTableBuilder() {
  std::free(arena_);
}

bool StringTableBuilder::reserve(std::size_t more) {
  if (more > kLargestArena - used_) {
    return false;
  }
  if (used_ + more > capacity_) {
    const std::size_t wanted = std::min(std::max(used_ + more, 2 * capacity_), kLargestArena);
    char* larger = arena_ == nullptr ? allocateBytes(wanted)
                                     : static_cast<char*>(std::realloc(arena_, wanted));
    if (larger == nullptr) {
      throw std::bad_alloc();
    }
    arena_ = larger;
    capacity_ = wanted;
  }
  return true;
}

bool StringTableBuilder::add(std::string_view key, std::string_view value) {
  if (key.size() > kLargestArena || value.size() > kLargestArena) {
    return false;
  }
  char* start = beginEntry(key.size() + value.size());
  if (start == nullptr) {
    return false;
  }
  std::copy(key.begin(), key.end(), start);
  std::copy(value.begin(), value.end(), start + key.size());
  commitEntry(key.size(), value.size());
  return true;
}

std::shared_ptr<const StringTable> StringTableBuilder::build() {
  auto table = std::make_shared<StringTable>();
  const std::size_t records = records_.size() + tentativeRecords_.size();
  if (records == 0) {
    return table;
  }
  // A sparse index makes misses faster; a large one should rather fit into the caches.
  const std::size_t slotsForEach = records < 50'000 ? kMostSlotsForEach : 2;
  const std::size_t count =
      std::min<std::size_t>(slotsForEach * records, std::numeric_limits<std::uint32_t>::max());
  const std::size_t start = (used_ + sizeof(Slot) - 1) / sizeof(Slot) * sizeof(Slot);
  void* const whole = std::realloc(arena_, start + count * sizeof(Slot));
  if (whole == nullptr) {
    throw std::bad_alloc();
  }
  arena_ = static_cast<char*>(whole);
  table->arena_ = String::takingOver(arena_, start + count * sizeof(Slot));
  auto* const index = reinterpret_cast<Slot*>(arena_ + start);
  arena_ = nullptr;
  used_ = 0;
  capacity_ = 0;
  providePages(reinterpret_cast<char*>(index), count * sizeof(Slot));
  std::uninitialized_fill_n(index, count, StringTable::kFree);
  table->index_ = index;
  table->slotCount_ = static_cast<std::uint32_t>(count);
  addToIndex(*table, {index, count}, std::exchange(tentativeRecords_, {}));
  addToIndex(*table, {index, count}, std::exchange(records_, {}));
  return table;
}

void StringTableBuilder::addToIndex(StringTable& table, std::span<Slot> index,
                                    std::span<const Slot> records) {
  const auto keyOf = [&](Slot slot) { return table.entryAt(StringTable::offsetIn(slot)).key; };
  const auto haveOneKey = [&](Slot a, Slot b) {
    return StringTable::mayHoldSameKey(a, b) && keyOf(a) == keyOf(b);
  };
  for (const Slot record : records) {
    std::size_t at = StringTable::homeSlot(record, table.slotCount_);
    while (index[at] != StringTable::kFree && !haveOneKey(index[at], record)) {
      at = table.slotBehind(at);
    }
    table.size_ += index[at] == StringTable::kFree ? 1 : 0;
    index[at] = record;
  }
}

}  // namespace orvanta::strings
