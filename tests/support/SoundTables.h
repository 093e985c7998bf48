#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <tests/support/MemorySource.h>

#include <orvanta/strings/reader/SoundTable.h>

namespace orvanta::test {

/// Whether the file's table can be read through a window; it must be `table`, that of a full read.
inline bool isSoundTable(std::string_view bytes, const strings::StringTable* table,
                         std::size_t most = std::string_view::npos) {
  MemorySource file(bytes, most);
  const auto sound = strings::readSoundTable(file, bytes.size());
  if (sound == nullptr) {
    return false;
  }
  const auto entriesOf = [](const strings::StringTable& given) {
    std::vector<std::pair<std::string_view, std::string_view>> entries;
    for (const auto& [key, value] : given.entries()) {
      entries.emplace_back(key, value);
    }
    return entries;
  };
  EXPECT_NE(table, nullptr) << testing::PrintToString(bytes);
  EXPECT_TRUE(table == nullptr || entriesOf(*sound) == entriesOf(*table))
      << testing::PrintToString(bytes);
  return true;
}

}  // namespace orvanta::test
