#pragma once

#include <memory>
#include <string_view>

#include <absl/container/flat_hash_map.h>

#include "data/Corpus.h"

namespace orvanta::bench {

/// The floor of the look-up rows: a flat hash map of views into one arena, key and value adjacent.
class ArenaMap {
 public:
  explicit ArenaMap(const Table& table) : arena_(new char[textBytes(table)]) {
    char* end = arena_.get();
    map_.reserve(table.size());
    for (const Entry& entry : table) {
      const std::string_view key = store(end, entry.key);
      map_.emplace(key, store(end, entry.value));
    }
  }

  /// The value of a key; null data when there is none.
  [[nodiscard]] std::string_view find(std::string_view key) const {
    const auto found = map_.find(key);
    return found == map_.end() ? std::string_view() : found->second;
  }

 private:
  static std::string_view store(char*& end, std::string_view text) {
    char* start = end;
    end += text.copy(start, text.size());
    return {start, text.size()};
  }

  std::unique_ptr<char[]> arena_;
  absl::flat_hash_map<std::string_view, std::string_view> map_;
};

}  // namespace orvanta::bench
