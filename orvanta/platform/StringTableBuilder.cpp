#include <algorithm>
#include <cstdlib>
#include <utility>

#include <orvanta/platform/StringTableBuilder.h>

namespace orvanta::platform {

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
  if (records_.empty()) {
    return table;
  }
  if (void* exact = std::realloc(arena_, used_)) {
    arena_ = static_cast<char*>(exact);
  }
  table->arena_ = String::takingOver(arena_, used_);
  arena_ = nullptr;
  used_ = 0;
  capacity_ = 0;
  table->fillIndex(std::exchange(records_, {}));
  return table;
}

}  // namespace orvanta::platform
