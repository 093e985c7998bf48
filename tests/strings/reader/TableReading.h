#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <tests/support/SoundTables.h>

#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// The result of reading a file, as texts that a row can be compared with.
struct TableReading {
  std::shared_ptr<const StringTable> table;
  std::string pairs;         ///< "key=value", by key, with "|" between them; or `kNoTable`.
  std::string places;        ///< "line:column" of every problem, with blanks between them.
  std::string statements{};  ///< "key@line:column" of every statement, and a blank.
};

inline constexpr const char* kNoTable = "no table";

inline TableReading readTable(std::string_view bytes) {
  TableReading reading;
  const auto add = [](std::string& list, std::size_t line, std::size_t column) {
    list += (list.empty() ? "" : " ") + std::to_string(line) + ":" + std::to_string(column);
  };
  reading.table = readStringTable(bytes, [&](const TableProblem& problem) {
    EXPECT_FALSE(problem.message.empty());
    add(reading.places, problem.line, problem.column);
  });
  const bool isSound = test::isSoundTable(bytes, reading.table.get());
  EXPECT_FALSE(isSound && !reading.places.empty());
  if (reading.table == nullptr) {
    EXPECT_FALSE(reading.places.empty()) << "a refusal says why";
    reading.pairs = kNoTable;
    return reading;
  }
  std::map<std::string_view, std::string_view> sorted;
  std::map<std::string, std::string> told;
  static_cast<void>(readStringTable(bytes, {}, [&](const TableStatement& statement) {
    told[statement.key];
    std::string place;
    add(place, statement.line, statement.column);
    reading.statements += statement.key + "@" + place + " ";
  }));
  EXPECT_EQ(told.size(), reading.table->size());
  for (const StringTable::Entry& entry : reading.table->entries()) {
    EXPECT_TRUE(told.contains(std::string(entry.key))) << "not told: " << entry.key;
    EXPECT_TRUE(sorted.emplace(entry.key, entry.value).second) << "twice: " << entry.key;
  }
  for (const auto& [key, value] : sorted) {
    reading.pairs.append(reading.pairs.empty() ? "" : "|").append(key).append("=").append(value);
  }
  return reading;
}

struct TableRow {
  const char* name;
  std::string bytes;
  std::string pairs;
  std::string places{};  // None: nothing to complain of.
};

inline void checkTables(const std::vector<TableRow>& rows) {
  for (const TableRow& row : rows) {
    SCOPED_TRACE(row.name);
    const TableReading reading = readTable(row.bytes);
    EXPECT_EQ(reading.pairs, row.pairs);
    EXPECT_EQ(reading.places, row.places);
  }
}

}  // namespace orvanta::strings
