#include <tests/support/Bytes.h>

#include "../TableReading.h"

namespace orvanta::strings {
namespace {

using namespace std::string_literals;

TEST(TextTable, ReadsStatements) {
  checkTables({
      {"nothing", "", ""},
      {"white space", " \t\r\n\v\f", ""},
      {"comments alone", "/* a */ // \"b\" = \"c\";", ""},
      {"as it is downloaded", "/* */\n\"a\" = \"1\";\n\n/* */\n\"b\" = \"2\";\n\n", "a=1|b=2"},
      {"wide line ends", "// a = 1;\u2028b = 2;// \u00E9\u2029c = 3;", "b=2|c=3"},
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

TEST(TextTable, TellsWhereStatementsStand) {
  const std::string text = "/* \u00E9 */ \"a\" = 1;\nb\r\n;\n\"c\" \"lost\";\n  'a' = \"2\";\n";
  const char* const places = "a@1:10 b@2:1 a@5:4 ";
  for (const test::Encoding& encoding : test::kEncodings) {
    EXPECT_EQ(readTable(test::encode(encoding, text)).statements, places) << encoding.name;
  }
  EXPECT_EQ(readTable("<plist><dict>\n <key>a</key><string/></dict></plist>").statements, "a@2:2 ");
}

TEST(TextTable, ResolvesEscapes) {
  const auto row = [](const char* name, const std::string& raw, const std::string& text) {
    return TableRow{name, "\"" + raw + "\" = \"" + raw + "\";", text + "=" + text};
  };
  checkTables({
      row("control characters", R"(\n\t\r\a\b\f\v)", "\n\t\r\a\b\f\v"),
      row("themselves", R"(\"\'\\\\n)", "\"'\\\\n"),
      row("unknown", R"(\q\u0041\x41\%)", "qu0041x41%"),
      row("units without digits", R"(\U\Ug)", "\0\0g"s),
      row("before more than a byte", "\\\u00E9\\\U0001F600", "\u00E9\U0001F600"),
      row("line break", "a\\\nb\\\r\nc", "a\nb\r\nc"),
      row("white space", "\\ \\\t", " \t"),
      row("units", R"(\U0041\U00e9\U20AC\U00411)", "A\u00E9\u20AC\u0041\u0031"),
      row("short units", R"(\U41g\Ue9\U9 )", "Ag\u00E9\t "),
      row("NUL", R"(\U0000\0\000)", "\0\0\0"s),
      row("pair of surrogates", R"(\Ud83d\UDE00)", "\U0001F600"),
      {"lone surrogates", R"(k = "\UD83D|\UDE00|\UD83D\UD83D\UDE00|\UD83D\U0041";k2;)",
       "k=\uFFFD|\uFFFD|\uFFFD\U0001F600|\uFFFDA|k2=k2", "1:51"},
      {"half a pair in the text", "\"\\UD83D\u00E9\";", "\uFFFD\u00E9=\uFFFD\u00E9", "1:9"},
      row("octal", R"(\101\60\7\1018)", "A0\aA8"),
      row("octal beyond ASCII", R"(\200\252\267\341\256\375\376\377)",
          "\u00A0\u201C\u2022\u00C6\uFB01\u00FF\uFFFD\uFFFD"),
      row("octal beyond a byte", R"(\501\777)", "A\uFFFD"),
      row("of the other quote only", R"(it's \'so\')", "it's 'so'"),
      row("many backslashes", std::string(1000, '\\') + "\\n", std::string(500, '\\') + "\n"),
  });
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
  const std::pair<const char*, std::string> rows[] = {
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
      {"a list", "(\"a\", \"b\")"},
      {"a list of dictionaries", "// x\n({\n  a = b;\n}, {\n  a = c;\n}\n)\n"},
      {"a damaged list of dictionaries", "({a = \"1\"; b = \"2\";}, {a = 2;)"},
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
  for (const auto& [name, bytes] : rows) {
    EXPECT_EQ(readTable(bytes).pairs, kNoTable) << name;
  }
}

}  // namespace
}  // namespace orvanta::strings
