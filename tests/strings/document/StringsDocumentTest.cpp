#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tests/support/BinaryList.h>
#include <tests/support/Bytes.h>

#include <orvanta/strings/document/StringsDocument.h>

namespace orvanta::strings {

namespace {

using namespace std::string_literals;

// What "new" makes of the file as the text of "k"; "refused" where it cannot hold it.
std::string withNewText(const std::string& bytes, const std::string& text = "new") {
  const std::optional<StringsDocument> document = StringsDocument::read(bytes);
  return document ? document->withTexts({{"k", text, "c"}}).value_or("refused") : "no table";
}

TEST(StringsDocument, ReplacesATextAndNothingElse) {
  const std::tuple<const char*, std::string, std::string> rows[] = {
      {"form", "\xEF\xBB\xBF// h\r\n\r\n 'a'=b ;\r\n k = 'o' ; // x",
       "\xEF\xBB\xBF// h\r\n\r\n 'a'=b ;\r\n k = 'new' ; // x"},
      {"unquoted", "k = old;", "k = \"new\";"},
      {"key alone", "\"k\" ;", "\"k\" = \"new\" ;"},
      {"the one that holds", "\"k\"=\"1\";\"k\"=\"2\";", "\"k\"=\"1\";\"k\"=\"new\";"},
      {"bare quotes", "\"k\" = \"a \"b\" c\";\n", "\"k\" = \"new\";\n"},
      {"never closed", "\"k\" = \"old;\n\"a\" = \"b\";", "\"k\" = \"new\";\n\"a\" = \"b\";"},
      {"no semicolon", "\"k\" = \"old\"\n\"a\" = \"b\";", "\"k\" = \"new\"\n\"a\" = \"b\";"},
      {"bytes that are no text", "/*\xFF\xE2\x82*/\"k\"=\"\xC3\";//\xFE",
       "/*\xFF\xE2\x82*/\"k\"=\"new\";//\xFE"},
      {"XML", "<dict><!--c--><key>k</key>\n<string>a&amp;<![CDATA[b]]></string></dict>",
       "<dict><!--c--><key>k</key>\n<string>new</string></dict>"},
      {"XML, empty", "<dict><key>k</key><string/></dict>",
       "<dict><key>k</key><string>new</string></dict>"},
      {"appended", "\"a\" = \"b\";", "\"a\" = \"b\";\n\n/* c */\n\"k\" = \"new\";\n"},
      {"appended in braces", "{\r\n\ta = b;\r\n}\r\n",
       "{\r\n\ta = b;\r\n\r\n\t/* c */\r\n\tk = \"new\";\r\n}\r\n"},
      {"appended to XML", "<dict>\n <key>a</key>\n <string/>\n</dict>",
       "<dict>\n <key>a</key>\n <string/>\n <!-- c -->\n <key>k</key>\n "
       "<string>new</string>\n</dict>"},
      {"appended to nothing", "", "\n/* c */\n\"k\" = \"new\";\n"},
      {"XML without an end", "<dict/>", "refused"},
      {"no table", "<html>", "no table"},
  };
  for (const auto& [name, before, after] : rows) {
    EXPECT_EQ(withNewText(before), after) << name;
    const auto document = StringsDocument::read(before);
    EXPECT_TRUE(!document || document->withTexts(document->entries()) == before) << name;
  }
}

TEST(StringsDocument, KeepsTheEncodingAndEscapesWhatItMust) {
  const std::string text = "\u00E9\U0001F600 \" ' \\ \\n \r\n\t \1\x7F & <b> ]]>\u2028";
  for (const test::Encoding& encoding : test::kEncodings) {
    const std::string before =
        test::encode(encoding, "// \u00E9\U0001F600\n'k' = 'o'; // \u20AC\n");
    const std::string after = withNewText(before, text);
    EXPECT_EQ(StringsDocument::read(after)->entries()[0].value, text) << encoding.name;
    EXPECT_EQ(withNewText(after, "o"), before) << encoding.name;
  }
  for (const char* const name : {"UTF-8", "ISO-8859-1"}) {
    const std::string before = "<?xml version=\"1.0\" encoding=\""s + name +
                               "\"?><dict><!--\x7F--><key>k</key><string>o</string></dict>";
    EXPECT_EQ(StringsDocument::read(withNewText(before, text))->entries()[0].value, text) << name;
    EXPECT_EQ(withNewText(before, "\0"s), "refused") << name;
  }
  const std::string binary = test::BinaryList()
                                 .pair(test::asciiObject("k"), test::asciiObject("o"))
                                 .pair(test::asciiObject("a"), test::utf16Object(u"\u00E9"))
                                 .bytes();
  EXPECT_EQ(withNewText(binary, "o"), binary);
  EXPECT_EQ(withNewText(binary, "\0"s), "\"k\" = \"\\U0000\";\n\"a\" = \"\u00E9\";\n");
}

TEST(StringsDocument, TellsTheCommentsOfAStatement) {
  const auto document = StringsDocument::read(
      "/* head */\n\n/* one\r\n two */ // three\na = 1; /* behind */\n\nb = 2; c = 3;\n"
      "/* lost */\n\"d\" \"4\";\n// e's\n\"e\" = \"/* text */\";\n// end\n");
  std::string comments;
  for (const DocumentEntry& entry : document->entries()) {
    comments += entry.key + "=" + entry.comment + "|";
  }
  EXPECT_EQ(comments, "a=one\n two\nthree\nbehind|b=|c=|e=e's|");
}

}  // namespace

}  // namespace orvanta::strings
