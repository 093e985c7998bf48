#include "../TableReading.h"

namespace orvanta::strings {
namespace {

using namespace std::string_literals;

const std::string kGood = "<key>good</key><string>G</string>";

std::string document(const std::string& pairs) {
  return "<plist version=\"1.0\"><dict>" + pairs + "</dict></plist>";
}

TEST(XmlTable, TellsPropertyListsFromOtherDocuments) {
  const std::string plist = document(kGood);
  checkTables({
      {"bare", plist, "good=G"},
      {"white space in front", " \r\n\t" + plist, "good=G"},
      {"declaration", "<?xml version='1.0' encoding='UTF-8'?>\n" + plist, "good=G"},
      {"comment with a decoy", "<!-- <plist><dict> -->" + plist, "good=G"},
      {"public identifier", "<!DOCTYPE plist PUBLIC \"-//x>//EN\" 'http://x/y.dtd'>" + plist,
       "good=G"},
      {"internal subset",
       "<!DOCTYPE plist [<!ENTITY a \"]>\"><!-- ' ]> --><?p ' ]> ?> %b; ] >" + plist, "good=G"},
      {"document type with an open quote", "<!DOCTYPE plist PUBLIC \"-//x//EN>\n" + plist,
       "good=G"},
      {"document type without end", "<!DOCTYPE plist [" + plist, "good=G"},
      {"comment without end", "<?xml version='1.0'?><!-- " + plist, "good=G"},
      {"attributes", "<plist a='>' b = \"/>\" c><dict d='e'>" + kGood + "</dict></plist>",
       "good=G"},
      {"without a list", "<?xml version='1.0'?><dict>" + kGood + "</dict>", "good=G"},
      {"a dictionary alone", "<dict>" + kGood, "good=G", "1:40"},
      {"hypertext with a declaration", "<?xml version='1.0'?><html>" + plist + "</html>", kNoTable,
       "1:22"},
      {"array on top", "<plist><array>" + plist + "</array></plist>", kNoTable, "1:8"},
      {"text on top", "<plist><string>a</string></plist>", kNoTable, "1:8"},
      {"empty list", "<plist/><dict>" + kGood + "</dict>", kNoTable, "1:1"},
      {"cut off", "<plist>", kNoTable, "1:8"},
      {"text form", R"("<plist><dict>" = "a";)", "<plist><dict>=a"},
  });
}

TEST(XmlTable, DecodesWhatTheDocumentDeclares) {
  const auto row = [](const char* name, const std::string& encoding, const char* text) {
    const std::string list = "<dict><key>a</key><string>\x80\xE9</string></dict>";
    return TableRow{name, "<?xml version='1.0' encoding=" + encoding + "?>" + list, text};
  };
  const std::string utf8 = document("<key>a</key><string>\u00E9</string>");
  checkTables({row("Latin-1", "'ISO-8859-1'", "a=\u0080\u00E9"),
               row("Latin-1 in lower case", "\"iso-8859-1\"", "a=\u0080\u00E9"),
               row("windows-1252", "'windows-1252'", "a=\u20AC\u00E9"),
               {"Unicode", "<?xml encoding='UTF-16'?>" + utf8, "a=\u00E9"},
               {"a mark", "\xEF\xBB\xBF<?xml encoding='ISO-8859-1'?>" + utf8, "a=\u00E9"},
               {"no name", "<?xml encoding=?>" + utf8, "a=\u00E9"},
               {"another one", "<?xml encoding = 'Shift_JIS'?>" + utf8, kNoTable, "1:19"},
               {"UTF-7", "<?xml encoding='utf-7'?>" + utf8, kNoTable, "1:17"}});
}

TEST(XmlTable, ReadsTexts) {
  const auto row = [](const char* name, const std::string& content, const std::string& text) {
    const std::string pair = "<key>" + content + "</key ><string a=''>" + content + "</string>";
    return TableRow{name, document(pair), text + "=" + text};
  };
  checkTables({
      row("white space is kept", " \t a\n b ", " \t a\n b "),
      row("predefined entities", "&lt;a&gt; &amp;amp; &quot;&apos;", "<a> &amp; \"'"),
      row("numeric references", "&#65;&#x42;&#x1f600;&#xE9;&#0067;", "AB\U0001F600\u00E9C"),
      {"references to no character",
       document("<key>a</key><string>&#0;|&#xD800;|&#x110000;|&#99999999999999999999;</string>"),
       "a=\uFFFD|\uFFFD|\uFFFD|\uFFFD", "1:48"},
      {"malformed references", document("<key>a</key><string>b&#;|&#x;|&#12z|&#xg;|&#</string>"),
       "a=b\uFFFD|\uFFFD|\uFFFDz|\uFFFDg;|\uFFFD", "1:49"},
      row("line ends", "a\r\nb\rc\n\rd&#13;", "a\nb\nc\n\nd\r"),
      row("literal section", "a<![CDATA[<b>&amp;\r\n]]]]>c", "a<b>&amp;\n]]c"),
      row("pieces", "a<!-- </string> -->b<?c </string>?>d<![CDATA[]]>&#101;", "abde"),
      row("beyond ASCII", "\u05E9\u05DC \U0001F468\u200D", "\u05E9\u05DC \U0001F468\u200D"),
      row("zero byte", "a\0b"s, "a\0b"s),
      row("nothing", "", ""),
      {"empty elements", document("<key/><string />"), "="},
      {"empty dictionary", "<plist><dict/></plist>", ""},
      {"the last one counts",
       document("<key>a</key><string>1</string><key>a</key><string>2</string>"), "a=2"},
  });
}

TEST(XmlTable, LosesOnlyThePairThatIsDamaged) {
  const auto row = [](const char* name, const std::string& damaged, const char* places) {
    const std::string after = "<key>after</key><string>A</string>";
    return TableRow{name, document(kGood + "\n" + damaged + after), "after=A|good=G", places};
  };
  const std::string key = "<key>a</key>";
  checkTables({
      row("integer", key + "<integer>1</integer>", "2:13"),
      row("flag", key + "<true/>", "2:13"),
      row("array", key + "<array><string>b</string><array/><array></array></array>", "2:13"),
      row("dictionary", key + "<dict><key>b</key><dict><key>c</key><true/></dict></dict>", "2:13"),
      row("flag without end", key + "<true>", "2:13"),
      row("array without end", key + "<array><string>b</string>", "2:13"),
      row("crossed ends", key + "<array><dict></array>", "2:13"),
      row("misspelt value", key + "<strnig>b</string>", "2:13"),
      row("misspelt end of a value", key + "<string>b</strnig>", "2:22"),
      row("misspelt end of a key", "<key>a</kye><string>b</string>", "2:7"),
      row("value without end", key + "<string>b", "2:22"),
      row("key without end", "<key>a<string>b</string>", "2:7"),
      row("key without value", key, "2:1"),
      row("key without value, blemish after it", key + "?", "2:1 2:13"),
      row("value without key", "<string>b</string>", "2:1"),
      row("markup in a value", key + "<string>b <b>c</b> d</string>", "2:23"),
      row("markup in a key", "<key>a<br/></key><string>b</string>", "2:7"),
      row("sign in a value", key + "<string>b < c</string>", "2:23"),
      row("unfinished tag", key + "<string", "2:1 2:13"),
      row("open quote in a tag", key + "<string a='>b</string>", "2:1 2:13"),
      row("own entity", key + "<string>b&c;d&e;</string>", "2:22"),
      row("own entity in a key", "<key>&b;</key><string>c</string>", "2:6"),
      row("bare ampersand", key + "<string>b & c</string>", "2:23"),
      row("literal section without end", key + "<string><![CDATA[b</string>", "2:21"),
  });
}

TEST(XmlTable, KeepsWhatStandsAroundABrokenFrame) {
  const std::string begin = "<plist>\r\n<dict>\r" + kGood;
  checkTables({
      {"cut off between pairs", begin, "good=G", "3:34"},
      {"cut off in a value", begin + "<key>\u00E9\u4E2D\U0001F600</key><string>b", "good=G",
       "3:57 3:57"},
      {"cut off in a tag", begin + "<key>a</ke", "good=G", "3:40 3:44"},
      {"dictionary without end", begin + "</plist>", "good=G", "3:34"},
      {"early end", "<plist><dict></dict>\n" + kGood + "</dict></plist>", "good=G", "1:14"},
      {"inner dictionary without end", begin + "<key>a</key><dict><key>b</key></dict></plist>",
       "good=G", "3:46 3:71"},
      {"stray end", begin + "</array></dict></plist>", "good=G", "3:34"},
      {"stray text", begin + "?<![CDATA[<]]>\n</dict>", "good=G", "3:34"},
      {"text behind the list", begin + "</dict></plist><", "good=G"},
  });
}

}  // namespace
}  // namespace orvanta::strings
