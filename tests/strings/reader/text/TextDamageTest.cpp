#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../TableReading.h"

namespace orvanta::strings {
namespace {

// What the texts of an application hold, and what makes a reader stumble, all of it well formed.
const std::string kValues[] = {"Plain text",
                               "Gr\u00FC\u00DFe, \u05E9\u05DC\u05D5\u05DD, \U0001F600",
                               R"(say \"yes\" or \"no\")",
                               "two\nlines; and = more",
                               "it's %@, 100 %",
                               R"(C:\\path\\)",
                               "",
                               "/* no comment */ // nor this",
                               "{a = b;} (c) <0f>",
                               R"(\U00e9\n)"};
constexpr std::size_t kEntries = 50;

std::string keyOf(std::size_t entry) {
  return "section." + std::to_string(entry) + ".title";
}

// A statement of the entry: "K" and "V" stand for its key and its value.
std::string statementOf(std::size_t entry, const std::string& form) {
  std::string statement;
  for (const char c : form) {
    statement += c == 'K'   ? keyOf(entry)
                 : c == 'V' ? kValues[entry % std::size(kValues)]
                            : std::string(1, c);
  }
  return statement;
}

const std::string kSound = R"("K" = "V";)";

struct Damage {
  const char* name;
  std::string form;
  std::size_t neighbours = 0;  // That it may cost, too.
};

const Damage kDamages[] = {
    {"a bare quote in the value", R"("K" = "a "bareV";)"},
    {"a stray control character", "\"K\" \x01= \"V\";"},
    {"no semicolon", R"("K" = "V")"},
    {"a value that is not closed", R"("K" = "V;)", 1},
    {"a key that is not closed", R"("K = "V";)", 1},
    {"a value that is not opened", R"("K" = V";)", 1},
    {"no sign", R"("K" "V";)"},
    {"no value", R"("K" = ;)"},
    {"text that is no statement", "TODO: ask, \u201Cplease\u201D!"},
    {"an array for a value", R"("K" = ("V", x, <00>);)"},
    {"a dictionary for a value", R"("K" = {x = "V"; y = ();};)"},
    {"data for a value", R"("K" = <0fa9 00>;)"},
    {"an escaped closing quote", R"("K" = "xV\";)", 1},
    {"a quote too many", R"("K" = "V"";)"},
    {"a stray quote", "\"\n" + kSound},
};

struct Layout {
  const char* name;
  std::string head;
  std::string before;
  std::string after;
  std::string tail;

  [[nodiscard]] std::string fileWith(std::size_t damaged, const std::string& form) const {
    std::string text = head;
    for (std::size_t entry = 0; entry < kEntries; ++entry) {
      text += before + statementOf(entry, entry == damaged ? form : kSound) + after;
    }
    return text + tail;
  }
};

const Layout kLayouts[] = {
    {"as it is downloaded", "", "/* */\n", "\n\n", ""},
    {"lines", "", "", "\n", ""},
    {"lines of the old kind", "", "", "\r", ""},
    {"with comments", "// table\n\n", "/* The title.\n   Of a section. */\n", " // x\r\n\r\n",
     "// end"},
    {"in braces", "{\n", "  ", "\n", "}\n"},
};

TEST(TextDamage, CostsTheDamagedStatementAlone) {
  for (const Layout& layout : kLayouts) {
    const TableReading sound = readTable(layout.fileWith(kEntries, ""));
    ASSERT_EQ(sound.table->size(), kEntries);
    ASSERT_EQ(sound.places, "");
    for (const Damage& damage : kDamages) {
      for (std::size_t damaged = 0; damaged < kEntries; ++damaged) {
        SCOPED_TRACE(std::string(layout.name) + ", " + damage.name + ", " + keyOf(damaged));
        const TableReading reading = readTable(layout.fileWith(damaged, damage.form));
        ASSERT_NE(reading.table, nullptr);
        EXPECT_NE(reading.places, "");
        for (std::size_t entry = 0; entry < kEntries; ++entry) {
          if (entry < damaged || entry > damaged + damage.neighbours) {
            const std::string text = keyOf(entry);
            const HashedKey key(text);
            EXPECT_EQ(reading.table->textForKey(key), sound.table->textForKey(key));
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvanta::strings
