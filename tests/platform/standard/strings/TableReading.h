#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/standard/strings/StringTableReader.h>

namespace orvanta::platform::standard {

using Pairs = std::map<std::string, std::string>;

struct TableReading {
  bool isTable = false;
  Pairs pairs;
  std::vector<std::string> places;  ///< "line:column" of every problem.
};

inline TableReading readTable(std::string_view bytes) {
  TableReading reading;
  const auto table = readStringTable(bytes, [&](const TableProblem& problem) {
    EXPECT_FALSE(problem.message.empty());
    reading.places.push_back(std::to_string(problem.line) + ":" + std::to_string(problem.column));
  });
  reading.isTable = table != nullptr;
  if (table != nullptr) {
    for (const StringTable::Entry& entry : table->entries()) {
      reading.pairs.emplace(entry.key, entry.value);
    }
  }
  return reading;
}

}  // namespace orvanta::platform::standard
