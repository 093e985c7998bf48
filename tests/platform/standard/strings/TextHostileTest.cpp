#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "TableReading.h"

namespace orvanta::platform::standard {
namespace {

// So many bytes that a reader whose time grows with their square would take minutes for any row.
constexpr std::size_t kSize = 2'000'000;

TEST(TextHostile, StaysLinearWhateverComes) {
  struct Row {
    const char* name;
    std::string head;
    std::string unit;
    std::string tail;
  };
  const Row rows[] = {
      {"opening quotes", "", "\"", ""},
      {"open strings", "", "k = \"x\n", ""},
      {"open strings of both kinds", "", "k = \"x\nk = 'x\n", ""},
      {"open strings with escapes", "", "k = \"\\\"\nk=\"\\", ""},
      {"an open string before many statements", "\"k\" = \"x\n", "k = v;\n", ""},
      {"escapes", "k = \"", "\\\"", ""},
      {"open comments", "", "/*", ""},
      {"open comments behind values", "", "k = v /*\n", ""},
      {"a comment that ends far away", "", "k = v /*\n", "*/ !"},
      {"chains of comments", "", "'k' /*\n'k' /*x*/ ", ""},
      {"comments behind escaped quotes", "k = \"", "/*\\\";\n/**/", ""},
      {"line comments", "", ";a=//", ""},
      {"line comments and statements", "a'>", "k=v;\"//", "\"k\""},
      {"line comments within lines", "", "k=v;(k='//", ""},
      {"brackets", "k = ", "(", ""},
      {"brackets on lines", "", "k = (\n", ""},
      {"braces on lines", "", "k = {\n", ""},
      {"braces with statements", "", "k = {k = v; ", ""},
      {"data without end", "", "k = <00\n", ""},
      {"semicolons", "", ";", ""},
      {"statements by halves in a line", "", ";a=b!", ""},
      {"open strings in a line", "", ";a='\\';", ""},
      {"bare quotes", "k = \"", "\"x", "\";"},
      {"bare quotes and semicolons", "k = \"", "\"; x", "\";\n"},
      {"blank lines", "k = \"x", "\n", "!"},
      {"spaces", "", " =", ""},
      {"wide spaces", "", "\u00A0\u00E9", ""},
      {"control characters", "", "\x01\x02=", ""},
      {"marks of UTF-16", "", "\uFEFF\xFF", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string text = "good = G;\n" + row.head;
    while (text.size() < kSize) {
      text += row.unit;
    }
    text += row.tail;
    const auto start = std::chrono::steady_clock::now();
    const TableReading reading = readTable(text);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    ASSERT_TRUE(reading.isTable);
    EXPECT_EQ(reading.pairs.at("good"), "G");
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
