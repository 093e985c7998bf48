#include <gtest/gtest.h>
#include <tests/support/Bytes.h>

#include <orvanta/strings/probe/SoundStatements.h>

namespace orvanta::strings {
namespace {

struct Row {
  const char* name;
  std::string text;
  std::size_t statements;
  bool reachesEnd;
};

const Row kRows[] = {
    {"nothing", "", 0, true},
    {"as downloaded", "/* */\n\"a\" = \"b\";\n\n/* */\n\"c\" = \"d\";\n\n", 2, true},
    {"tight", R"("a"="b";"c"="d";)", 2, true},
    {"spread out", "\"a\"\t /* x */=\r\n// y\n\"b\" ; ", 1, true},
    {"its own value", R"("a"; "b";)", 2, true},
    {"escapes", R"("a\"" = "\\\"\n\\"; "\\" = "";)", 2, true},
    {"many quotes", R"("";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";"";)", 22,
     true},
    {"quotes in comments", "/* \"\\\" */ \"a\" = \"b\"; // it's \"\n\"c\";/*/ \" */", 2, true},
    {"beyond ASCII", "\"\u00E9\u222A\" = \"\u5C22\U0001F600\u2222\";", 1, true},
    {"a line that ends beyond ASCII", "\"a\" = \"b\"; // \u00E9\u2028\"c\" = \"d\";", 1, false},
    {"a line that ends with U+2029", "\"a\"; // \u2029\"b\";", 1, false},
    {"another sign", R"("a" : "b";)", 0, false},
    {"a comment within a comment", R"("a" = "b"; /* c /* d */)", 1, false},
    {"no semicolon", "\"a\" = \"b\"\n\"c\" = \"d\";", 0, false},
    {"a string without an end", R"("a" = "b"; "c" = "d;)", 1, false},
    {"an escaped end", R"("a" = "b"; "c" = "d\";)", 1, false},
    {"half a comment", R"("a" = "b"; /)", 1, false},
    {"wide white space", "\"a\" = \"b\";\u00A0", 1, false},
};

template <TextEncoding kEncoding>
void check(const Row& row, const test::Encoding& encoding, std::size_t shift) {
  SCOPED_TRACE(std::string(row.name) + ", " + encoding.name + ", shift " + std::to_string(shift));
  const std::string bytes = test::unitsOf(encoding, std::string(shift, ' ') + row.text);
  SoundStatements<TextUnits<kEncoding>> statements{TextUnits<kEncoding>(bytes)};
  std::size_t count = 0;
  for (std::size_t end = 0; statements.next(); ++count) {
    EXPECT_EQ(statements.begin(), end);
    EXPECT_GT(statements.end(), end);
    end = statements.end();
  }
  EXPECT_EQ(count, row.statements);
  EXPECT_EQ(statements.isAtEnd(), row.reachesEnd);
}

// Quotes are found in blocks of 64 units, so each row is tested at every offset in a block.
TEST(SoundStatements, PassesOverTheUsualOnes) {
  for (const Row& row : kRows) {
    for (std::size_t shift = 0; shift < 66; ++shift) {
      check<TextEncoding::kUtf8>(row, test::kEncodings[0], shift);
      check<TextEncoding::kUtf16Little>(row, test::kUtf16Little, shift);
      check<TextEncoding::kUtf16Big>(row, test::kUtf16Big, shift);
    }
  }
}

TEST(SoundStatements, TakesNoTornUnitForTheEnd) {
  // On the heap: for a literal, GCC 12 warns of reads past its end that never happen.
  const std::string bytes = test::unitsOf(test::kUtf16Little, std::string(20, '\n')) + '\n';
  SoundStatements<TextUnits<TextEncoding::kUtf16Little>> statements{
      TextUnits<TextEncoding::kUtf16Little>(bytes)};
  EXPECT_FALSE(statements.next());
  EXPECT_FALSE(statements.isAtEnd());
}

}  // namespace
}  // namespace orvanta::strings
