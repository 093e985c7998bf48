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
      {"text before the brace", "x{a = 1;b = 2;}", both, "1:1"},
      {"a brace too many inside", "{a = 1;\n{\"b\" = \"2\";\n}", both, "2:1"},
      {"text behind the last statement", "a = 1;b = 2;\n\nthe end", both, "3:5"},
      {"text before the first", "say what\na = 1;b = 2;", both, "1:5"},
      {"a bracket before the first", "(\"a\" = \"1\";\n\"b\" = \"2\";", both, "1:1"},
      {"a last value without quotes and semicolon", "\"b\" = \"2\";\na = 1", both, "2:6"},
      {"a comment in a comment", "a = 1;\n/* x\n/* y */b = 2;", both},
      {"statements in a comment", "a = 1;/* x\nc = 3;\n/* y */b = 2;", both, "1:7"},
      {"marks of a conflict", "<<<<<<< x\na = 1;\n=======\nb = 2;\n>>>>>>> y\n", both,
       "1:1 3:1 5:1"},
  });
}

TEST(TextRecovery, TakesBareQuotesForText) {
  checkTables({
      {"a word", "\"a\" = \"say \"1\" now\";\nb = 2;", "a=say \"1\" now|b=2", "1:12"},
      {"at both ends", "\"a\" = \"\"1\"\";\nb = 2;", "a=\"1\"|b=2", "1:8"},
      {"one too many", "\"a\" = \"1\"\";\nb = 2;", "a=1\"|b=2", "1:9"},
      {"punctuation behind it", "\"a\" = \"1\";\".\";\nb = 2;", ".=.|a=1|b=2"},
      {"a quote and a semicolon behind it", "\"a\" = \"1\";\";\nb = 2;", "a=1|b=2", "1:11"},
      {"punctuation and a quote behind it", "\"a\" = \"1\"; .-\";\nb = 2;", "a=1|b=2", "1:14"},
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
      {"of several lines", "\"a\" = \"1\n\n x;\n\"b\" = \"2\";", "a=1|b=2", "1:7"},
      {"before a wide line end", "\"a\" = \"1;\u2028\"b\" = \"2\";", "a=1|b=2", "1:7"},
      {"before a sign on the next line", "\"a\"\n= \"1;\n\"b\"\n= \"2\";", "a=1|b=2", "2:3"},
      {"at the end", "b = 2;\n\"a\" = \"1;\n\n", "a=1|b=2", "2:7"},
      {"before the brace", "{b = 2;\n\"a\" = \"1;\n}", "a=1|b=2", "2:7"},
      {"of several lines at the end", "b = 2;\n\"a\" = \"1\nx\n", "a=1|b=2", "2:7"},
  });
}

TEST(TextRecovery, LosesNoMoreThanTheStatement) {
  const std::string one = "b=2";
  checkTables({{"no sign", "\"a\" \"1\";\nb = 2;", one, "1:5"},
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
               {"two in a row", "\"a\" \"1\";\n\"c\" \"1\";\n\"b\" = \"2\";", one, "1:5 2:1"},
               {"cut off", "b = 2;\na = ", one, "2:4"},
               {"no value before the next line", "\"a\" =\n\"b\" = \"2\";", one, "1:6"},
               {"no value, signs on the next line", "\"a\"\n=\n\"b\"\n= \"2\";", one, "2:2"},
               {"no sign, signs on the next line", "\"a\"\n\"1\";\n\"b\"\n= \"2\";", one, "2:1"},
               {"a stray sign of markup", "<a\" = \"1\";\nb = 2;", one, "1:1"},
               {"a key that begins as a list does", "<plist\" = \"1\";\nb = 2;", one, "1:1"},
               {"a large one at the beginning", "\"a\" = " + std::string(1000, '?') + ";\nb = 2;",
                one, "1:7"}});
}

TEST(TextRecovery, LosesNoMoreThanTheStatementWithinALine) {
  const std::string both = "a=1|c=3";
  checkTables({
      {"bare quotes", R"("a"="1";"b"="say "hi"";"c"="3";)", "a=1|b=say \"hi\"|c=3", "1:18"},
      {"a bare quote", R"("a"="1";"b"="say "hi";"c"="3";)", "a=1|b=say \"hi|c=3", "1:18"},
      {"a string without end", R"("a"="1";"b"="2;"c"="3";)", "a=1|b=2|c=3", "1:13"},
      {"no semicolon", R"("a"="1";"b"="2""c"="3";)", "a=1|b=2|c=3", "1:16"},
      {"no sign", R"("a"="1";"b""2";"c"="3";)", both, "1:12"},
      {"no value", R"("a"="1";"b"=;"c"="3";)", both, "1:13"},
      {"a stray quote", R"("a"="1";";"c"="3";)", both, "1:9"},
      {"keys without quotes", R"(a="1";b=2";c="3";)", both, "1:10"},
      {"a key without quotes behind a quote", R"("a"="1";"b"="2"";c="3";)", "a=1|b=2\"|c=3",
       "1:15"},
      {"in braces", R"({"a"="1";"b"="2;})", "a=1|b=2", "1:14"},
      {"rest of markup", R"("a"="1";<"c"="3";)", both, "1:9"},
      {"a quote in a key is no key's beginning", R"("a"="1";"x "b" = "2";)", "a=1", "1:13"},
  });
}

TEST(TextRecovery, PassesOverCollections) {
  const std::string one = "b=2";
  const std::string deep(200, '(');
  const std::string deepest = std::string(100, '(') + "x" + std::string(100, ')');
  const std::string right = "\"title\" = \"Right\";\n";
  const std::string sound = "b=2|title=Right";
  checkTables({
      {"data", "a = <0fa0 12>;\nb = 2;", one, "1:5"},
      {"a typed value", "a = <*I1>;\nb = 2;", one, "1:5"},
      {"an array", "a = (1, \"x;\ny\", (z),);b = 2;", one, "1:5"},
      {"a dictionary", "\"a\" = {x = \"}\"; y = {/*}*/ z = (<>); }; };\nb = 2;", one, "1:7"},
      {"a dictionary without semicolon", "a = {x = 1;}\nb = 2;", one, "1:5"},
      {"an array that does not end", "a = (1, 2;\nb = 2;", one, "1:5"},
      {"data that are none", "a = <x>1</x>;\nb = 2;", one, "1:5"},
      {"an array as deep as can be", "a = " + deepest + ";b = 2;", one, "1:5"},
      {"a table without texts", "{\n  a = (1, 2);\n  b = {c = d;};\n}\n", "", "2:7 3:7"},
      {"an array too deep", "b = 2;\na = " + deep + ";\n", one, "2:5"},
      {"a sign too many inside", right + "m = {\n title == \"Wrong\";\n};\nb = 2;", sound, "2:5"},
      {"a quote too few inside", right + "m = {\n title = \"Wrong;\n};\nb = 2;", sound, "2:5"},
      {"a bracket too few inside", right + "m = {\n x = (1;\n title = 1;\n};\nb = 2;", sound,
       "2:5"},
      {"no closing brace", right + "m = {\n title = \"Wrong\";\nb = 2;", sound, "2:5"},
      {"no closing brace, not indented", right + "m = {\ntitle = \"Wrong\";\nb = 2;", sound, "2:5"},
      {"no opening brace", right + "m = \n title = \"Wrong\";\n};\nb = 2;", sound, "2:4 4:1 4:2"},
      {"no sign", right + "m {\n title = \"Wrong\";\n};\nb = 2;", sound, "2:3"},
      {"a brace too many", right + "m = {\n x = {1;};}\n title = 2;\n};\nb = 2;", sound, "2:5"},
      {"a brace for a quote, in braces", "{\n\"a\" = {1\";\n\"b\" = \"2\";\n}", one, "2:7"},
      {"repeated keys behind it", right + "m = {;\n\"title\" = \"2\";\nb = 1;b = 2;", sound, "2:5"},
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
