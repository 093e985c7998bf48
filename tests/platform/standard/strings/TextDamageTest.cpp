#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TableReading.h"

namespace orvanta::platform::standard {
namespace {

constexpr std::size_t kEntries = 50;

struct Entry {
  std::string key;
  std::string value;
};

// What the texts of an application hold, and what makes a reader stumble, all of it well formed.
std::vector<Entry> makeEntries() {
  const std::string values[] = {"Plain text",
                                "Gr\u00FC\u00DFe, \u05E9\u05DC\u05D5\u05DD, \U0001F600",
                                R"(say \"yes\" or \"no\")",
                                "two\nlines; and = more",
                                "it's %@, 100 %",
                                R"(C:\\path\\)",
                                "",
                                "/* no comment */ // nor this",
                                "{a = b;} (c) <0f>",
                                R"(\U00e9\n)"};
  std::vector<Entry> entries;
  for (std::size_t index = 0; index < kEntries; ++index) {
    entries.push_back(
        {"section." + std::to_string(index) + ".title", values[index % std::size(values)]});
  }
  return entries;
}

std::string statementOf(const Entry& entry) {
  return "\"" + entry.key + "\" = \"" + entry.value + "\";";
}

struct Damage {
  const char* name;
  std::function<std::string(const Entry&)> statement;
  std::size_t neighbours = 0;
};

const Damage kDamages[] = {
    {"a bare quote in the value",
     [](const Entry& e) { return "\"" + e.key + "\" = \"a \"bare" + e.value + "\";"; }},
    {"a stray control character",
     [](const Entry& e) { return "\"" + e.key + "\" \x01= \"" + e.value + "\";"; }},
    {"no semicolon", [](const Entry& e) { return "\"" + e.key + "\" = \"" + e.value + "\""; }},
    {"a value that is not closed",
     [](const Entry& e) { return "\"" + e.key + "\" = \"" + e.value + ";"; }, 1},
    {"a key that is not closed",
     [](const Entry& e) { return "\"" + e.key + " = \"" + e.value + "\";"; }, 1},
    {"a value that is not opened",
     [](const Entry& e) { return "\"" + e.key + "\" = " + e.value + "\";"; }, 1},
    {"no sign", [](const Entry& e) { return "\"" + e.key + "\" \"" + e.value + "\";"; }},
    {"no value", [](const Entry& e) { return "\"" + e.key + "\" = ;"; }},
    {"text that is no statement", [](const Entry&) { return "TODO: ask, \u201Cplease\u201D!"; }},
    {"an array for a value",
     [](const Entry& e) { return "\"" + e.key + "\" = (\"" + e.value + "\", x, <00>);"; }},
    {"a dictionary for a value",
     [](const Entry& e) { return "\"" + e.key + "\" = {x = \"" + e.value + "\"; y = ();};"; }},
    {"data for a value", [](const Entry& e) { return "\"" + e.key + "\" = <0fa9 00>;"; }},
    {"an escaped closing quote",
     [](const Entry& e) { return "\"" + e.key + "\" = \"x" + e.value + "\\\";"; }, 1},
    {"a quote too many",
     [](const Entry& e) { return "\"" + e.key + "\" = \"" + e.value + "\"\";"; }},
    {"a stray quote", [](const Entry& e) { return "\"\n" + statementOf(e); }},
};

struct Layout {
  const char* name;
  std::string head;
  std::string before;
  std::string after;
  std::string tail;
};

const Layout kLayouts[] = {
    {"as it is downloaded", "", "/* */\n", "\n\n", ""},
    {"lines", "", "", "\n", ""},
    {"lines of the old kind", "", "", "\r", ""},
    {"with comments", "// table\n\n", "/* The title.\n   Of a section. */\n", " // x\r\n\r\n",
     "// end"},
    {"in braces", "{\n", "  ", "\n", "}\n"},
};

std::size_t countLost(const Pairs& sound, const Pairs& read, std::size_t damaged,
                      const std::vector<Entry>& entries, std::size_t neighbours) {
  std::size_t lost = 0;
  for (std::size_t index = 0; index < entries.size(); ++index) {
    const auto found = read.find(entries[index].key);
    const bool same = found != read.end() && found->second == sound.at(entries[index].key);
    const bool mayDiffer = index >= damaged && index <= damaged + neighbours;
    lost += same || mayDiffer ? 0 : 1;
  }
  return lost;
}

TEST(TextDamage, CostsTheDamagedStatementAlone) {
  const std::vector<Entry> entries = makeEntries();
  for (const Layout& layout : kLayouts) {
    const auto fileWith = [&](std::size_t damaged, const std::string& statement) {
      std::string text = layout.head;
      for (std::size_t index = 0; index < entries.size(); ++index) {
        text += layout.before + (index == damaged ? statement : statementOf(entries[index])) +
                layout.after;
      }
      return text + layout.tail;
    };
    const TableReading sound = readTable(fileWith(kEntries, ""));
    ASSERT_EQ(sound.pairs.size(), kEntries);
    ASSERT_TRUE(sound.places.empty());
    for (const Damage& damage : kDamages) {
      for (std::size_t damaged = 0; damaged < kEntries; ++damaged) {
        SCOPED_TRACE(std::string(layout.name) + ", " + damage.name + ", " +
                     std::to_string(damaged));
        const std::string text = fileWith(damaged, damage.statement(entries[damaged]));
        const TableReading reading = readTable(text);
        ASSERT_TRUE(reading.isTable);
        EXPECT_EQ(countLost(sound.pairs, reading.pairs, damaged, entries, damage.neighbours), 0U);
        EXPECT_FALSE(reading.places.empty());
      }
    }
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
