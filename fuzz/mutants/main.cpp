// Damages tables in known places and counts what the reader of strings files loses beside the
// damage:
//
//     table_mutants [GROUP]
//
// Every run has the same mutants. Shows each loss of the group. Exits with 1 when more is lost than
// the rows below allow.
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <map>

#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/Utf8.h>

#include "Mutant.h"
#include "ReferenceReader.h"
#include "Tables.h"

namespace orvanta::fuzz {
namespace {

using Entries = std::map<std::string, std::string>;

constexpr std::size_t kStatements = 8;

struct GroupRow {
  Group group;
  const char* name;
  std::size_t mutants;
  std::size_t mostLost;    // Sound neighbours that these mutants may lose together.
  std::size_t mostLeaked;  // Entries from inside a lost collection.
};

constexpr GroupRow kGroups[] = {{Group::kOrdinary, "ordinary layouts", 60'000, 150, 0},
                                {Group::kSignOnNextLine, "sign on the next line", 10'000, 100, 0},
                                {Group::kOneLine, "one line", 15'000, 600, 0},
                                {Group::kCollections, "collections", 10'000, 50, 300}};
constexpr std::size_t kMostMixed = 80;

struct Figures {
  std::size_t neighbours = 0;
  std::size_t lost = 0;
  std::size_t mixed = 0;    // Entries made of a damaged statement and a sound one.
  std::size_t leaked = 0;   // Entries from inside a lost collection.
  std::size_t misread = 0;  // Sound files that are not read by the letter.
};

struct Case {
  const char* layout;
  std::string table;
  std::vector<Statement> statements;
  Edit edit;
  std::string mutant;
  Entries read;

  // The last statement with a key wins, so a statement whose key was copied elsewhere does not
  // count.
  [[nodiscard]] bool isSoundNeighbour(const Statement& statement) const {
    const std::string key = table.substr(statement.begin, statement.keyEnd - statement.begin);
    return statement.isText && !edit.hits(statement) &&
           edit.replacement.find(key) == std::string::npos;
  }
};

bool isIn(const Entries& entries, const Statement& statement) {
  const auto found = entries.find(statement.key);
  return found != entries.end() && found->second == statement.value;
}

Entries readEntries(std::string_view bytes) {
  Entries entries;
  if (const auto table = strings::readStringTable(bytes)) {
    for (const auto& [key, value] : table->entries()) {
      entries.emplace(key, value);
    }
  }
  return entries;
}

// The entries of a sound text, by the reference reader.
Entries entriesOf(const Reading& reading) {
  Entries entries;
  for (const Statement& statement : reading.statements) {
    if (statement.isText) {
      entries[statement.key] = statement.value;
    }
  }
  return entries;
}

std::string repaired(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const utf8::Decoded next = utf8::decode(bytes);
    utf8::append(text, next.codePoint);
    bytes.remove_prefix(next.length);
  }
  return text;
}

bool holds(const std::string& text, const std::string& part) {
  constexpr std::size_t kShortest = 3;
  return part.size() >= kShortest && text.find(part) != std::string::npos;
}

bool isMixed(const Case& c, const std::string& key, const std::string& value) {
  std::string damaged = c.edit.replacement;
  for (const Statement& statement : c.statements) {
    if (statement.isText && statement.key == key && statement.value == value) {
      return false;
    }
    if (c.edit.hits(statement) || c.edit.copies(statement)) {
      damaged += "\n" + statement.key + "\n" + statement.value;
    }
  }
  const std::string entry = key + "\n" + value;
  for (const Statement& statement : c.statements) {
    for (const std::string& part : {statement.key, statement.value}) {
      if (holds(entry, part) && !holds(damaged, part)) {
        return true;
      }
    }
  }
  return false;
}

void show(const Case& c, const char* what) {
  std::printf("---- %s: %s, %s at %zu\n%s\n---- read:\n", what, c.layout, c.edit.kind, c.edit.begin,
              c.mutant.c_str());
  for (const auto& [key, value] : c.read) {
    std::printf("%s => %s\n", key.c_str(), value.c_str());
  }
}

Case makeCase(Group group, std::size_t index) {
  std::mt19937 random(static_cast<unsigned>(index * std::size(kGroups)) +
                      static_cast<unsigned>(group));
  const std::vector<Layout>& layouts = layoutsOf(group);
  const Layout& layout = layouts[index % layouts.size()];
  std::vector<RawPair> pairs = inventPairs(random, kStatements);
  std::size_t collection = pairs.size();
  if (group == Group::kCollections) {
    collection = below(random, pairs.size());
    pairs[collection].value = inventCollection(random);
  }
  Case c = {layout.name, layOut(layout, pairs), {}, {}, {}, {}};
  Reading reading = readByTheLetter(c.table);
  if (!reading.isSound || reading.statements.size() != pairs.size()) {
    std::fprintf(stderr, "not sound before it was damaged:\n%s\n", c.table.c_str());
    std::exit(2);
  }
  c.statements = std::move(reading.statements);
  do {
    c.edit = inventEdit(random, c.table);
  } while (collection < pairs.size() && !c.edit.hits(c.statements[collection]));
  c.mutant = c.edit.appliedTo(c.table);
  c.read = readEntries(c.mutant);
  return c;
}

void countSound(const Case& c, const Entries& expected, Figures& figures) {
  for (const Statement& statement : c.statements) {
    figures.neighbours += c.isSoundNeighbour(statement) && isIn(expected, statement) ? 1 : 0;
  }
  if (expected != c.read) {
    ++figures.misread;
    show(c, "misread");
  }
}

void countDamaged(const Case& c, bool isShown, Figures& figures) {
  const std::size_t before = figures.lost + figures.mixed + figures.leaked;
  for (const Statement& statement : c.statements) {
    const bool isSound = c.isSoundNeighbour(statement);
    figures.neighbours += isSound ? 1 : 0;
    figures.lost += isSound && !isIn(c.read, statement) ? 1 : 0;
  }
  for (const auto& [key, value] : c.read) {
    figures.mixed += isMixed(c, key, value) ? 1 : 0;
    figures.leaked += key.starts_with(kInnerKey) ? 1 : 0;
  }
  if (isShown && figures.lost + figures.mixed + figures.leaked > before) {
    show(c, "damaged");
  }
}

Figures runGroup(const GroupRow& row, bool isShown) {
  Figures figures;
  for (std::size_t index = 0; index < row.mutants; ++index) {
    const Case c = makeCase(row.group, index);
    const Reading reading = readByTheLetter(repaired(c.mutant));
    if (reading.isSound) {
      countSound(c, entriesOf(reading), figures);
    } else {
      countDamaged(c, isShown, figures);
    }
  }
  return figures;
}

bool runAll(std::string_view shown) {
  bool isGood = true;
  std::size_t mixed = 0;
  for (const GroupRow& row : kGroups) {
    const Figures figures = runGroup(row, shown == row.name);
    std::printf(
        "%-21s %6zu mutants, %6zu sound neighbours: %3zu lost, %2zu mixed, %3zu leaked, "
        "%zu misread\n",
        row.name, row.mutants, figures.neighbours, figures.lost, figures.mixed, figures.leaked,
        figures.misread);
    isGood = isGood && figures.lost <= row.mostLost && figures.leaked <= row.mostLeaked &&
             figures.misread == 0;
    mixed += figures.mixed;
  }
  return isGood && mixed <= kMostMixed;
}

}  // namespace
}  // namespace orvanta::fuzz

int main(int count, char** arguments) {
  return orvanta::fuzz::runAll(count > 1 ? arguments[1] : "") ? 0 : 1;
}
