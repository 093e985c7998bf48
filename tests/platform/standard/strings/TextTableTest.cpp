#include <string>

#include <gtest/gtest.h>

#include "TableReading.h"

namespace orvanta::platform::standard {
namespace {

using namespace std::string_literals;

TEST(TextTable, ReadsStatements) {
  checkTables({
      {"nothing", "", ""},
      {"white space", " \t\r\n\v\f", ""},
      {"comments alone", "/* a */ // \"b\" = \"c\";", ""},
      {"as it is downloaded", "/* */\n\"a\" = \"1\";\n\n/* */\n\"b\" = \"2\";\n\n", "a=1|b=2"},
      {"without white space", "\"a\"=\"1\";b=2;c;", "a=1|b=2|c=c"},
      {"much white space", "\n\"a\"\n\t=\r\n\"1\"\f;\v\"b\"\u2028=\u00A0\"2\" ;\uFEFF", "a=1|b=2"},
      {"comments everywhere", "/**/\"a\"/***/=//x\n/*;\"*/\"1\"/*\n*/;//\"b\"=\"2\";", "a=1"},
      {"comments inside strings", "\"/*a\" = \"//1*/\";", "/*a=//1*/"},
      {"single quotes", "'a' = 'say \"1\"';\"b\" = \"it's\";", "a=say \"1\"|b=it's"},
      {"without quotes", "a_$/:.-Z9 = /usr/bin:http://x.y/;", "a_$/:.-Z9=/usr/bin:http://x.y/"},
      {"key alone", "\"a b\"; 'c' ;d/e;", "a b=a b|c=c|d/e=d/e"},
      {"repeated key", "a = 1;\"b\"=2;'a'=\"3\";", "a=3|b=2"},
      {"empty strings", "\"\" = \"\";", "="},
      {"several lines", "\"a\nb\" = \"1\r\n\n2\r3\";", "a\nb=1\r\n\n2\r3"},
      {"a NUL", "\"a\0b\" = \"\0\";"s, "a\0b=\0"s},
      {"braces", " {\n \"a\" = \"1\"; }\n", "a=1"},
      {"braces around nothing", "/**/{}", ""},
      {"beyond ASCII", "\"\u05E9\" = \"\U0001F600\u00E9\";", "\u05E9=\U0001F600\u00E9"},
  });
}

TEST(TextTable, ResolvesEscapes) {
  struct Row {
    const char* name;
    std::string raw;
    std::string text;
  };
  const Row rows[] = {
      {"control characters", R"(\n\t\r\a\b\f\v)", "\n\t\r\a\b\f\v"},
      {"themselves", R"(\"\'\\\\n)", "\"'\\\\n"},
      {"unknown", R"(\q\u0041\x41\%\U\Ug)", "qu0041x41%UUg"},
      {"before more than a byte", "\\\u00E9\\\U0001F600", "\u00E9\U0001F600"},
      {"line break", "a\\\nb\\\r\nc", "a\nb\r\nc"},
      {"white space", "\\ \\\t", " \t"},
      {"units", R"(\U0041\U00e9\U20AC\U00411)", "A\u00E9\u20AC\u0041\u0031"},
      {"short units", R"(\U41g\Ue9\U9 )", "Ag\u00E9\t "},
      {"NUL", R"(\U0000\0\000)", "\0\0\0"s},
      {"pair of surrogates", R"(\Ud83d\UDE00)", "\U0001F600"},
      {"lone surrogates", R"(\UD83D|\UDE00|\UD83D\UD83D\UDE00|\UD83D\U0041)",
       "\uFFFD|\uFFFD|\uFFFD\U0001F600|\uFFFDA"},
      {"half a pair in the text", "\\UD83D\u00E9", "\uFFFD\u00E9"},
      {"octal", R"(\101\60\7\1018)", "A0\aA8"},
      {"octal beyond ASCII", R"(\200\252\267\341\256\375\376\377)",
       "\u00A0\u201C\u2022\u00C6\uFB01\u00FF\uFFFD\uFFFD"},
      {"octal beyond a byte", R"(\501\777)", "A\uFFFD"},
      {"of the other quote only", R"(it's \'so\')", "it's 'so'"},
      {"many backslashes", std::string(1000, '\\') + "\\n", std::string(500, '\\') + "\n"},
  };
  for (const Row& row : rows) {
    const std::string raw = "\"" + row.raw + "\"";
    checkTables({{row.name, raw + " = " + raw + ";", row.text + "=" + row.text}});
  }
}

std::string noise(std::size_t size) {
  std::string bytes;
  std::uint32_t state = 1;
  while (bytes.size() < size) {
    state = state * 1664525 + 1013904223;
    bytes.push_back(static_cast<char>(state >> 24));
  }
  return bytes;
}

TEST(TextTable, RejectsWhatIsNoTable) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"hypertext", "<!DOCTYPE html>\n<html><body class=\"a\">Not found</body></html>\n"},
      {"hypertext with a script",
       "<html><script>\nvar a;\n b = \"1\"; c = \"2\";\n</script></html>"},
      {"another document", "\n<error><code>404</code></error>"},
      {"object notation", R"({"a": "1", "b": {"c": [1, 2, "x; y = z;"]}})"},
      {"object notation over lines", "{\n  \"a\": \"1\",\n  \"b\": null\n}\n"},
      {"list notation", R"(["a", "b"])"},
      {"a word", "Forbidden"},
      {"a sentence", "404: page not found\n"},
      {"a form's answer", "error=invalid_token"},
      {"noise", noise(100'000)},
      {"picture", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s + noise(5000)},
      {"archive", "PK\x03\x04\x14\0\0\0"s + noise(5000)},
      {"zeros", std::string(4096, '\0')},
      {"zeros after a mark of UTF-16", "\xFF\xFE" + std::string(4096, '\0')},
      {"statement by chance", "[" + noise(100'000) + "\n\"a\" = \"1\";\n"},
      {"comment without end", "/* a"},
      {"string without end", "\"a"},
      {"braces alone", "}{"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(readTable(row.bytes).pairs, kNoTable) << row.name;
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
