#include <string>

#include <gtest/gtest.h>

#include "../TableReading.h"

namespace orvanta::strings {
namespace {

using namespace std::string_literals;

TEST(TextRecovery, SavesWhatIsMeant) {
  const std::string both = "a=1|b=2";
  checkTables({
      {"semicolon missing at a line's end", "\"a\" = \"1\" // x\n\"b\" = \"2\";", both, "1:10"},
      {"semicolon missing within a line", "\"a\" = \"1\" \"b\" = \"2\";", both, "1:10"},
      {"semicolon missing at the end", "a = 1;\"b\" = \"2\"\n", both, "1:16"},
      {"semicolon missing before the brace", "{a = 1;\n\"b\" = \"2\"}", both, "2:10"},
      {"semicolon missing behind a plain value", "a = 1\nb = 2;", both, "1:6"},
      {"semicolon too many", ";a = 1;;;b = 2;", both, "1:1 1:8"},
      {"stray controls", "\x01 a\x02= \"1\"\x7F;\0\n\"b\" \x03\x04= \"2\";"s, both,
       "1:1 1:4 1:10 1:12 2:5"},
      {"comment without end", "a = 1;\n/* x\nb = 2;", both, "2:1"},
      {"comment without end inside", "a = /* x\n1;b = 2;", both, "1:5"},
      {"closing brace missing", "{a = 1;b = 2;\n", both, "2:1"},
      {"braces too many", "a = 1;}{{b = 2;", both, "1:7 1:8"},
      {"two groups", "{a = 1;}\n{b = 2;}", both, "2:1 2:1 2:8"},
      {"text behind the brace", "{a = 1;b = 2;} x", both, "1:16 1:17"},
      {"text behind the last statement", "a = 1;b = 2;\n\nthe end", both, "3:5"},
      {"text before the first", "say what\na = 1;b = 2;", both, "1:5"},
      {"marks of a conflict", "<<<<<<< x\na = 1;\n=======\nb = 2;\n>>>>>>> y\n", both,
       "1:1 3:1 5:1"},
  });
}

TEST(TextRecovery, TakesBareQuotesForText) {
  checkTables({
      {"a word", "\"a\" = \"say \"1\" now\";\nb = 2;", "a=say \"1\" now|b=2", "1:12"},
      {"at both ends", "\"a\" = \"\"1\"\";\nb = 2;", "a=\"1\"|b=2", "1:8"},
      {"one too many", "\"a\" = \"1\"\";\nb = 2;", "a=1\"|b=2", "1:9"},
      {"a semicolon behind it", "\"a\" = \"1\"; 2\";\nb = 2;", "a=1\"; 2|b=2", "1:9"},
      {"an attribute", "\"a\" = \"<a href=\"x\">\\\"1\\\"</a>\"; // c\nb = 2;",
       "a=<a href=\"x\">\"1\"</a>|b=2", "1:16"},
      {"over lines", "\"a\" = \"1 \"x\"\n\n\"y\" 2\n3\" ;\nb = 2;", "a=1 \"x\"\n\n\"y\" 2\n3|b=2",
       "1:10"},
      {"single", "'a' = 'it's';\nb = 2;", "a=it's|b=2", "1:10"},
      {"the last line", "b = 2;\n\"a\" = \"1\"2\";", "a=1\"2|b=2", "2:9"},
      {"a raw backslash at the end", "\"a\" = \"C:\\\";\n\n/* */\n\"b\" = \"2\";\n", "a=C:\\|b=2",
       "1:11"},
      {"a raw backslash at the very end", "\"b\" = \"2\";\"a\" = \"C:\\\";\n", "a=C:\\|b=2",
       "1:17"},
  });
}

TEST(TextRecovery, EndsAnOpenStringWithItsLine) {
  checkTables({
      {"before a statement", "\"a\" = \"1;\nb = 2;", "a=1|b=2", "1:7"},
      {"before a comment", "\"a\" = \"1;\n\n/* x\n */ // y\n\"b\" = \"2\";", "a=1|b=2", "1:7"},
      {"without semicolon", "\"a\" = '1 \n\"b\" = '2';", "a=1|b=2", "1:7"},
      {"before a key alone", "\"a\" = \"1;\n\"b\";\n", "a=1|b=b", "1:7"},
      {"two in a row", "\"a\" = \"1;\n\"b\" = \"2;\n\"c\" = \"3\";", "a=1|b=2|c=3", "1:7 2:7"},
      {"of several lines", "\"a\" = \"1\n\n x;\n\"b\" = \"2\";", "a=1\n\n x|b=2", "1:7"},
      {"at the end", "b = 2;\n\"a\" = \"1;\n\n", "a=1|b=2", "2:7"},
      {"before the brace", "{b = 2;\n\"a\" = \"1;\n}", "a=1|b=2", "2:7"},
      {"of several lines at the end", "b = 2;\n\"a\" = \"1\nx\n", "b=2", "2:7"},
  });
}

TEST(TextRecovery, LosesNoMoreThanTheStatement) {
  const std::string one = "b=2";
  const std::string deep(200, '(');
  const std::string deepest = std::string(100, '(') + "x" + std::string(100, ')');
  checkTables({
      {"no sign", "\"a\" \"1\";\nb = 2;", one, "1:5"},
      {"no sign, within a line", "\"a\" \"1\"; b = 2;", one, "1:5"},
      {"no value", "a = ;\nb = 2;", one, "1:5"},
      {"no key", "= \"1\";b = 2;", one, "1:1"},
      {"two signs", "a = = 1;\nb = 2;", one, "1:5"},
      {"key not opened", "a\" = \"1\";\nb = 2;", one, "1:2"},
      {"key not closed", "\"a = \"1\";\n\"b\" = \"2\";", one, "1:7"},
      {"key not closed, nothing behind", "b = 2;\n\"a = 1;\n", one, "2:1"},
      {"value not opened", "\"a\" = 1 x\";\n\"b\" = \"2\";", one, "1:8"},
      {"several words", "a = 1 x;\nb = 2;", one, "1:6"},
      {"a word behind the value", "a = \"1\" x;\nb = 2;", one, "1:8"},
      {"colon for a sign", "\"a\": \"1\",\n\"b\" = \"2\";", one, "1:4"},
      {"curly quotes", "\u201Ca\u201D = \u201C1\u201D;\n\"b\" = \"2\";", one, "1:1"},
      {"two in a row", "\"a\" \"1\";\n\"c\" \"1\";\n\"b\" = \"2\";", one, "1:5 2:5"},
      {"cut off", "b = 2;\na = ", one, "2:5"},
      {"data", "a = <0fa0 12>;\nb = 2;", one, "1:5"},
      {"an array", "a = (1, \"x;\ny\", (z),);b = 2;", one, "1:5"},
      {"a dictionary", "\"a\" = {x = \"}\"; y = {/*}*/ z = (<>); }; };\nb = 2;", one, "1:7"},
      {"a dictionary without semicolon", "a = {x = 1;}\nb = 2;", one, "1:5"},
      {"an array that does not end", "a = (1, 2;\nb = 2;", one, "1:5"},
      {"data that are none", "a = <x>1</x>;\nb = 2;", one, "1:5"},
      {"an array as deep as can be", "a = " + deepest + ";b = 2;", one, "1:5"},
      {"a table without texts", "{\n  a = (1, 2);\n  b = {c = d;};\n}\n", "", "2:7 3:7"},
      {"an array too deep", "b = 2;\na = " + deep + ";\n", one, "2:5"},
  });
}

TEST(TextRecovery, CountsLinesAndCharacters) {
  checkTables({
      {"kinds of line breaks", "a=1;\nb=1;\r\nc=1;\rd=1;\n\r\n x;;", "a=1|b=1|c=1|d=1|x=x", "6:4"},
      {"characters of several bytes", "\"\u00E9\u4E16\U0001F600\"=\"\u0301\";;",
       "\u00E9\u4E16\U0001F600=\u0301", "1:11"},
  });
}

}  // namespace
}  // namespace orvanta::strings
