// Damages tables in known places and counts what the reader of strings files loses beside the
// damage:
//
//     table_mutants [--percent N] [--show GROUP] [FILE...]
//
// The tables are generated, or built from the statements of the files. The same arguments give the
// same mutants. Exits with 1 when more is lost than the rows below allow.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/Utf8.h>

#include "Mutant.h"
#include "ReferenceReader.h"
#include "Tables.h"

namespace orvanta::fuzz {
namespace {

using Entries = std::map<std::string, std::string>;
using Sources = std::vector<std::vector<RawPair>>;

constexpr std::size_t kStatements = 8;

struct GroupRow {
  Group group;
  const char* name;
  std::size_t mutants;     // In a full run.
  std::size_t mostLost;    // Sound neighbours that these mutants may lose together.
  std::size_t mostLeaked;  // Entries from inside a lost collection.
};

constexpr GroupRow kGroups[] = {
    {Group::kOrdinary, "ordinary layouts", 60'000, 150, 0},
    {Group::kSignOnNextLine, "sign on the next line", 10'000, 100, 0},
    {Group::kOneLine, "one line", 15'000, 600, 0},
    {Group::kCollections, "collections", 10'000, 50, 300},
};
constexpr std::size_t kMostMixed = 80;

struct Figures {
  std::size_t neighbours = 0;
  std::size_t lost = 0;
  std::size_t losing = 0;   // Mutants that lose a neighbour.
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

void show(const Case& c, const std::string& what) {
  std::printf("---- %s: %s, %s at %zu\n%s\n---- read:\n", what.c_str(), c.layout, c.edit.kind,
              c.edit.begin, c.mutant.c_str());
  for (const auto& [key, value] : c.read) {
    std::printf("%s => %s\n", key.c_str(), value.c_str());
  }
}

Case makeCase(Group group, std::size_t index, const Sources& sources) {
  std::mt19937 random(static_cast<unsigned>(index * std::size(kGroups)) +
                      static_cast<unsigned>(group));
  const std::vector<Layout>& layouts = layoutsOf(group);
  const Layout& layout = layouts[index % layouts.size()];
  std::vector<RawPair> pairs =
      sources.empty() ? inventPairs(random, kStatements) : sources[below(random, sources.size())];
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
  std::size_t lost = 0;
  for (const Statement& statement : c.statements) {
    const bool isSound = c.isSoundNeighbour(statement);
    figures.neighbours += isSound ? 1 : 0;
    lost += isSound && !isIn(c.read, statement) ? 1 : 0;
  }
  std::size_t mixed = 0;
  std::size_t leaked = 0;
  for (const auto& [key, value] : c.read) {
    mixed += isMixed(c, key, value) ? 1 : 0;
    leaked += key.starts_with(kInnerKey) ? 1 : 0;
  }
  figures.lost += lost;
  figures.losing += lost > 0 ? 1 : 0;
  figures.mixed += mixed;
  figures.leaked += leaked;
  if (isShown && lost + mixed + leaked > 0) {
    show(c, std::to_string(lost) + " lost, " + std::to_string(mixed) + " mixed, " +
                std::to_string(leaked) + " leaked");
  }
}

Figures runGroup(const GroupRow& row, std::size_t mutants, bool isShown, const Sources& sources) {
  Figures figures;
  for (std::size_t index = 0; index < mutants; ++index) {
    const Case c = makeCase(row.group, index, sources);
    const Reading reading = readByTheLetter(repaired(c.mutant));
    if (reading.isSound) {
      countSound(c, entriesOf(reading), figures);
    } else {
      countDamaged(c, isShown, figures);
    }
  }
  return figures;
}

bool runAll(std::size_t percent, const std::string& shown, const Sources& sources) {
  const auto part = [&](std::size_t full) { return (full * percent + 99) / 100; };
  bool isGood = true;
  std::size_t mixed = 0;
  for (const GroupRow& row : kGroups) {
    const std::size_t mutants = part(row.mutants);
    const Figures figures = runGroup(row, mutants, shown == row.name, sources);
    std::printf(
        "%-21s %6zu mutants, %6zu sound neighbours: %3zu lost by %3zu mutants, "
        "%2zu mixed, %3zu leaked, %zu misread\n",
        row.name, mutants, figures.neighbours, figures.lost, figures.losing, figures.mixed,
        figures.leaked, figures.misread);
    isGood = isGood && figures.lost <= part(row.mostLost) &&
             figures.leaked <= part(row.mostLeaked) && figures.misread == 0;
    mixed += figures.mixed;
  }
  return isGood && mixed <= part(kMostMixed);
}

// Adds the statements of a file, in tables of `kStatements`. Leaves out statements with \U escapes.
void addSources(const char* path, Sources& sources) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const strings::WholeUtf8 text(strings::detectEncoding(bytes));
  const auto piece = [&](std::size_t begin, std::size_t end) {
    return std::string(text.view().substr(begin, end - begin));
  };
  std::vector<RawPair> pairs;
  Entries keys;
  for (const Statement& statement : readByTheLetter(text.view()).statements) {
    const bool isPair = statement.isText && statement.valueBegin != statement.valueEnd;
    if (!isPair || piece(statement.begin, statement.end).find("\\U") != std::string::npos ||
        !keys.emplace(statement.key, "").second) {
      continue;
    }
    pairs.push_back({piece(statement.begin, statement.keyEnd),
                     piece(statement.valueBegin, statement.valueEnd)});
    if (pairs.size() == kStatements) {
      sources.push_back(std::exchange(pairs, {}));
    }
  }
}

}  // namespace
}  // namespace orvanta::fuzz

int main(int count, char** arguments) {
  std::size_t percent = 100;
  std::string shown;
  orvanta::fuzz::Sources sources;
  for (int index = 1; index < count; ++index) {
    const bool hasNext = index + 1 < count;
    if (hasNext && std::strcmp(arguments[index], "--percent") == 0) {
      percent = std::strtoul(arguments[++index], nullptr, 10);
    } else if (hasNext && std::strcmp(arguments[index], "--show") == 0) {
      shown = arguments[++index];
    } else {
      orvanta::fuzz::addSources(arguments[index], sources);
    }
  }
  return orvanta::fuzz::runAll(percent, shown, sources) ? 0 : 1;
}
