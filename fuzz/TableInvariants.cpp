#include "TableInvariants.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <tuple>
#include <vector>

#include <orvanta/platform/Utf8.h>
#include <orvanta/platform/standard/strings/StringTableReader.h>

namespace orvanta::fuzz {

namespace {

using platform::StringTable;
using platform::standard::readStringTable;
using platform::standard::TableProblem;

// An entry costs at most an index slot or two besides its characters; the shortest statement that
// makes one takes 2 bytes.
constexpr std::size_t kLargestGrowth = 32;
constexpr std::size_t kAlwaysGranted = std::size_t{1} << 20;

void require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
  }
}

struct Reading {
  std::shared_ptr<const StringTable> table;
  std::vector<TableProblem> problems;
};

Reading read(std::string_view bytes) {
  Reading reading;
  reading.table = readStringTable(
      bytes, [&](const TableProblem& problem) { reading.problems.push_back(problem); });
  return reading;
}

void checkEntries(const StringTable& table) {
  const std::vector<StringTable::Entry> entries = table.entries();
  require(entries.size() == table.size(), "the table has as many entries as it says");
  for (const StringTable::Entry& entry : entries) {
    const String text = table.textForKey(HashedKey(entry.key));
    require(text.isPresent() && text == entry.value, "an entry is found under its key");
    require(utf8::isValid(entry.key) && utf8::isValid(entry.value), "texts are valid UTF-8");
  }
}

void checkProblem(const TableProblem& problem, std::string_view bytes) {
  require(!problem.message.empty(), "a problem says what it is");
  if (bytes.starts_with("bplist00")) {
    require(problem.line == 0 && problem.column == 0, "a binary file has no lines");
    return;
  }
  require(problem.line >= 1 && problem.column >= 1, "lines and columns count from 1");
  require(problem.line + problem.column <= bytes.size() + 2, "a problem lies within the file");
}

void checkSame(const StringTable* a, const StringTable* b) {
  require((a == nullptr) == (b == nullptr), "what is a table once is one again");
  if (a == nullptr) {
    return;
  }
  const std::vector<StringTable::Entry> ours = a->entries();
  const std::vector<StringTable::Entry> theirs = b->entries();
  require(ours.size() == theirs.size(), "reading again gives as many entries");
  for (std::size_t i = 0; i < ours.size(); ++i) {
    require(ours[i].key == theirs[i].key && ours[i].value == theirs[i].value,
            "reading again gives the same entries");
  }
}

void checkSame(const std::vector<TableProblem>& a, const std::vector<TableProblem>& b) {
  require(a.size() == b.size(), "reading again gives as many problems");
  for (std::size_t i = 0; i < a.size(); ++i) {
    require(std::tie(a[i].line, a[i].column, a[i].message) ==
                std::tie(b[i].line, b[i].column, b[i].message),
            "reading again gives the same problems");
  }
}

}  // namespace

void checkTable(std::string_view bytes) {
  const Reading first = read(bytes);
  if (first.table) {
    checkEntries(*first.table);
    require(first.table->heapBytes() <= kAlwaysGranted + kLargestGrowth * bytes.size(),
            "memory stays in proportion to the file");
  }
  for (const TableProblem& problem : first.problems) {
    checkProblem(problem, bytes);
  }
  const Reading second = read(bytes);
  checkSame(first.table.get(), second.table.get());
  checkSame(first.problems, second.problems);
  checkSame(first.table.get(), readStringTable(bytes).get());
}

}  // namespace orvanta::fuzz
