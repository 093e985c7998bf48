#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

#include <orvanta/platform/standard/strings/StringTable.h>

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kHeader = 2 * sizeof(std::uint32_t);
constexpr std::uint64_t kFree = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t kHashMask = 0xFFFFFFFF00000000;

struct Record {
  std::string_view key;
  std::string_view value;
};

Record recordAt(const char* arena, std::uint64_t offset) noexcept {
  std::uint32_t lengths[2];
  const char* start = arena + offset;
  std::memcpy(lengths, start, kHeader);
  return {{start + kHeader, lengths[0]}, {start + kHeader + lengths[0], lengths[1]}};
}

// Spreads the half of the hash that a slot stores over a number of slots that need not be a power
// of two. Both uses of the same bits: neighbours agree in their upper bits, the lower ones still
// tell all but a few in a million apart.
std::size_t homeSlot(std::uint64_t slot, std::uint32_t slotCount) noexcept {
  return static_cast<std::size_t>(((slot >> 32) * slotCount) >> 32);
}

bool haveOneKey(const char* arena, std::uint64_t a, std::uint64_t b) noexcept {
  return ((a ^ b) & kHashMask) == 0 &&
         recordAt(arena, a & ~kHashMask).key == recordAt(arena, b & ~kHashMask).key;
}

}  // namespace

String StringTable::textForKey(const HashedKey& key) const noexcept {
  if (slotCount_ == 0) {
    return {};
  }
  for (std::size_t at = homeSlot(key.hash, slotCount_);;) {
    const std::uint64_t slot = slots_[at];
    if (slot == kFree) {
      return {};
    }
    if (((slot ^ key.hash) & kHashMask) == 0) {
      const Record record = recordAt(arena_.get(), slot & ~kHashMask);
      if (record.key == key.text) {
        return String::sharing(arena_, record.value);
      }
    }
    at = at + 1 == slotCount_ ? 0 : at + 1;
  }
}

std::vector<StringTable::Entry> StringTable::entries() const {
  std::vector<std::uint64_t> offsets;
  offsets.reserve(size_);
  for (std::size_t at = 0; at < slotCount_; ++at) {
    if (slots_[at] != kFree) {
      offsets.push_back(slots_[at] & ~kHashMask);
    }
  }
  std::sort(offsets.begin(), offsets.end());
  std::vector<Entry> entries;
  entries.reserve(offsets.size());
  for (const std::uint64_t offset : offsets) {
    const Record record = recordAt(arena_.get(), offset);
    entries.push_back({record.key, record.value});
  }
  return entries;
}

std::size_t StringTable::heapBytes() const noexcept {
  return sizeof(StringTable) + arenaSize_ + slotCount_ * sizeof(std::uint64_t);
}

void StringTable::fillIndex(std::span<const std::uint64_t> records) {
  slotCount_ = static_cast<std::uint32_t>(
      std::min<std::size_t>(2 * records.size(), std::numeric_limits<std::uint32_t>::max()));
  slots_ = std::make_unique_for_overwrite<std::uint64_t[]>(slotCount_);
  std::fill_n(slots_.get(), slotCount_, kFree);
  for (const std::uint64_t record : records) {
    std::size_t at = homeSlot(record, slotCount_);
    while (slots_[at] != kFree && !haveOneKey(arena_.get(), slots_[at], record)) {
      at = at + 1 == slotCount_ ? 0 : at + 1;
    }
    size_ += slots_[at] == kFree ? 1 : 0;
    slots_[at] = record;
  }
}

StringTableBuilder::StringTableBuilder(std::size_t expectedBytes) {
  static_cast<void>(reserve(expectedBytes));
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
    void* larger = std::realloc(arena_, wanted);
    if (larger == nullptr) {
      return false;
    }
    arena_ = static_cast<char*>(larger);
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
  if (slots_.empty()) {
    return table;
  }
  if (void* exact = std::realloc(arena_, used_)) {
    arena_ = static_cast<char*>(exact);
  }
  table->arena_ = std::shared_ptr<const char>(
      std::exchange(arena_, nullptr), [](const char* p) { std::free(const_cast<char*>(p)); });
  table->arenaSize_ = static_cast<std::uint32_t>(std::exchange(used_, 0));
  capacity_ = 0;
  table->fillIndex(std::exchange(slots_, {}));
  return table;
}

}  // namespace orvanta::platform::standard
