#include <ctime>

#include <tests/support/BinaryList.h>

#include "TableReading.h"

namespace orvanta::strings {
namespace {

// Large enough that quadratic time would exceed the limit by far.
constexpr std::size_t kSize = 500'000;
constexpr double kMostSeconds = 8;

std::string filled(const std::string& piece) {
  return test::repeated(piece, kSize / piece.size() + 1);
}

const std::string kXml = "<plist><dict><key>good</key><string>G</string>";

void checkInTime(const std::string& bytes) {
  const std::clock_t start = std::clock();
  const TableReading reading = readTable(bytes);
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, kMostSeconds);
  ASSERT_NE(reading.table, nullptr);
  EXPECT_EQ(reading.table->textForKey(HashedKey("good")), "G");
}

const std::tuple<const char*, std::string, std::string, std::string> kRows[] = {
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
    {"quotes before comments", "a=\"b\"c", "/*\";/*/", ">"},
    {"heads over lines", "", "\"k\"\n/**/", "!"},
    {"values over lines", "", "\"k\" =\n", "!"},
    {"dictionaries inside of dictionaries", "", "\"k\"={\"k\"=", ""},
    {"indented dictionaries", "k", "\n k = {", "!"},
    {"data inside of a dictionary", "k={", "<", ""},
    {"closing braces", "{k=v;", "x}", ""},
    {"comments inside of comments", "", "/*\na=b;\n/* */", ""},
    {"signs of markup", "", "<", ""},
    {"bare quotes", "k = \"", "\"x", "\";"},
    {"bare quotes and semicolons", "k = \"", "\"; x", "\";\n"},
    {"blank lines", "k = \"x", "\n", "!"},
    {"spaces", "", " =", ""},
    {"wide spaces", "", "\u00A0\u00E9", ""},
    {"control characters", "", "\x01\x02=", ""},
    {"marks of UTF-16", "", "\uFEFF\xFF", ""},
    {"XML: nested dictionaries", kXml + "<key>a</key>", "<dict>", ""},
    {"XML: crossed ends", kXml + "<key>a</key>" + filled("<dict>"), "</array>", ""},
    {"XML: comments without end", kXml, "<!--", ""},
    {"XML: literal sections without end", kXml, "<![CDATA[", ""},
    {"XML: instructions without end", kXml, "<?", ""},
    {"XML: open quotes", kXml, "<a b='", ""},
    {"XML: keys and blemishes", kXml, "<key>a</key>?", ""},
    {"XML: references", kXml + "<key>", "&#x;", "</key><string>"},
    {"XML: ampersands", kXml + "<key>a</key><string>", "&", ""},
};

// Each text is a good statement, the head, the repeated unit, and the tail.
TEST(HostileTable, TakesLinearTimeWhateverComes) {
  for (const auto& [name, head, unit, tail] : kRows) {
    SCOPED_TRACE(name);
    std::string table = head.starts_with(kXml) ? "" : "good = G;\n";
    checkInTime(table.append(head).append(filled(unit)).append(tail));
  }
}

// Decoding the long text for every lost pair would take minutes.
TEST(HostileTable, TakesLinearTimeWhereNoPairOfABinaryListIsSound) {
  test::BinaryList list{3, 4};
  list.pair(test::asciiObject("good"), test::asciiObject("G"));
  const auto huge = list.object(test::utf16Object(std::u16string(std::size_t{1} << 20, 0x4E2D)));
  const auto flag = list.object("\x09");
  for (int i = 0; i < 200000; ++i) {
    list.pair(huge, flag);
  }
  checkInTime(list.bytes());
}

}  // namespace
}  // namespace orvanta::strings
