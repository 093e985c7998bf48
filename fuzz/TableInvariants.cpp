#include "TableInvariants.h"

#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include <tests/support/MemorySource.h>

#include <orvanta/strings/document/StringsDocument.h>
#include <orvanta/strings/reader/SoundTable.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/Utf8.h>

#include "Target.h"

namespace orvanta::fuzz {

namespace {

using strings::readStringTable;
using strings::StringTable;
using strings::TableProblem;

// An entry takes a few index slots besides its characters; the shortest statement has 2 bytes.
constexpr std::size_t kLargestGrowth = 32;
constexpr std::size_t kAlwaysGranted = std::size_t{1} << 20;

// A multiple of what the slowest known texts take under the sanitizers. Quadratic time exceeds it
// from some ten thousand bytes on.
constexpr double kMostSecondsPerByte = 40e-6;
constexpr double kSecondsAlwaysGranted = 0.2;

struct Reading {
  std::shared_ptr<const StringTable> table;
  std::vector<TableProblem> problems;
};

// Measures processor time, which is independent of other load.
Reading read(std::string_view bytes) {
  Reading reading;
  const std::clock_t begin = std::clock();
  reading.table = readStringTable(
      bytes, [&](const TableProblem& problem) { reading.problems.push_back(problem); });
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  require(
      seconds <= kSecondsAlwaysGranted + kMostSecondsPerByte * static_cast<double>(bytes.size()),
      "time stays in proportion to the file");
  return reading;
}

const StringTable kNone;

std::string described(const Reading& reading) {
  std::string text = reading.table ? "table\n" : "no table\n";
  for (const StringTable::Entry& entry : (reading.table ? *reading.table : kNone).entries()) {
    text.append(entry.key).append("=").append(entry.value).append("\n");
  }
  for (const TableProblem& problem : reading.problems) {
    text += std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " +
            problem.message + "\n";
  }
  return text;
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

// What the document refuses to write is not looked at: that must be damaged.
void checkDocument(std::string_view bytes, const StringTable* table) {
  const auto document = strings::StringsDocument::read(std::string(bytes));
  require(document.has_value() == (table != nullptr), "a document is a table, too");
  if (!document) {
    return;
  }
  std::vector<strings::DocumentEntry> texts = document->entries();
  require(texts.size() == table->size(), "the document has the table's entries");
  for (strings::DocumentEntry& text : texts) {
    require(table->textForKey(HashedKey(text.key)) == text.value, "with the table's values");
  }
  require(document->withTexts(texts) == bytes, "what does not change stays as it is");
  if (!texts.empty()) {
    texts.front().value += '"';
    const auto changed = document->withTexts(texts);
    require(!changed || readStringTable(*changed)->size() == texts.size(),
            "a changed value changes no other entry");
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
  checkDocument(bytes, first.table.get());
  for (const TableProblem& problem : first.problems) {
    checkProblem(problem, bytes);
  }
  const std::string once = described(first);
  require(once == described(read(bytes)), "reading again gives the same");
  require(once.starts_with(described({readStringTable(bytes), {}})),
          "nobody listening changes nothing");
  constexpr std::size_t kPiece = 251;
  test::MemorySource file(bytes, kPiece);
  if (const auto sound = strings::readSoundTable(file, bytes.size())) {
    require(once == described({sound, {}}), "a table read through a window is the same, and sound");
  }
}

}  // namespace orvanta::fuzz
