#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

#include <orvanta/platform/standard/strings/StringTable.h>

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kHeader = 2 * sizeof(std::uint32_t);
constexpr std::size_t kLargestArena = std::numeric_limits<std::uint32_t>::max();
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

// Spreads the low half of the hash, which no slot stores, over a number of slots that need not be
// a power of two.
std::size_t homeSlot(std::uint64_t hash, std::uint32_t slotCount) noexcept {
  return static_cast<std::size_t>(((hash & 0xFFFFFFFF) * slotCount) >> 32);
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
  if (key.size() > kLargestArena || value.size() > kLargestArena ||
      !reserve(kHeader + key.size() + value.size())) {
    return false;
  }
  const std::uint32_t lengths[2] = {static_cast<std::uint32_t>(key.size()),
                                    static_cast<std::uint32_t>(value.size())};
  records_.push_back(static_cast<std::uint32_t>(used_));
  char* start = arena_ + used_;
  std::memcpy(start, lengths, kHeader);
  std::copy(key.begin(), key.end(), start + kHeader);
  std::copy(value.begin(), value.end(), start + kHeader + key.size());
  used_ += kHeader + key.size() + value.size();
  return true;
}

std::shared_ptr<const StringTable> StringTableBuilder::build() {
  auto table = std::make_shared<StringTable>();
  if (records_.empty()) {
    return table;
  }
  if (void* exact = std::realloc(arena_, used_)) {
    arena_ = static_cast<char*>(exact);
  }
  table->arena_ = std::shared_ptr<const char>(
      std::exchange(arena_, nullptr), [](const char* p) { std::free(const_cast<char*>(p)); });
  table->arenaSize_ = static_cast<std::uint32_t>(used_);
  table->slotCount_ = static_cast<std::uint32_t>(
      std::min<std::size_t>(2 * records_.size(), std::numeric_limits<std::uint32_t>::max()));
  table->slots_ = std::make_unique_for_overwrite<std::uint64_t[]>(table->slotCount_);
  std::fill_n(table->slots_.get(), table->slotCount_, kFree);
  for (const std::uint32_t offset : records_) {
    const Record record = recordAt(table->arena_.get(), offset);
    const std::uint64_t hash = textHash(record.key);
    const std::uint64_t slot = (hash & kHashMask) | offset;
    std::size_t at = homeSlot(hash, table->slotCount_);
    for (;; at = at + 1 == table->slotCount_ ? 0 : at + 1) {
      if (table->slots_[at] == kFree) {
        ++table->size_;
        break;
      }
      if (((table->slots_[at] ^ hash) & kHashMask) == 0 &&
          recordAt(table->arena_.get(), table->slots_[at] & ~kHashMask).key == record.key) {
        break;
      }
    }
    table->slots_[at] = slot;
  }
  records_.clear();
  used_ = 0;
  capacity_ = 0;
  return table;
}

}  // namespace orvanta::platform::standard
