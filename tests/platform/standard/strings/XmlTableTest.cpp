#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/standard/strings/XmlTable.h>

namespace orvanta::platform::standard {
namespace {

using namespace std::string_literals;
using Pairs = std::map<std::string, std::string>;

struct Reading {
  bool isTable = false;
  Pairs pairs;
  std::vector<std::string> places;  ///< "line:column" of every problem.
};

Reading read(std::string_view xml) {
  Reading reading;
  StringTableBuilder builder;
  reading.isTable = readXmlTable(xml, builder, [&](const TableProblem& problem) {
    EXPECT_FALSE(problem.message.empty());
    reading.places.push_back(std::to_string(problem.line) + ":" + std::to_string(problem.column));
  });
  const auto table = builder.build();
  for (const StringTable::Entry& entry : table->entries()) {
    reading.pairs.emplace(entry.key, entry.value);
  }
  return reading;
}

const std::string kGood = "<key>good</key><string>G</string>";

std::string document(const std::string& pairs) {
  return "<plist version=\"1.0\"><dict>" + pairs + "</dict></plist>";
}

TEST(XmlTable, TellsPropertyListsFromOtherDocuments) {
  struct Row {
    const char* name;
    std::string document;
    bool looksLike;
    bool isTable;
  };
  const std::string plist = document(kGood);
  const Row rows[] = {
      {"bare", plist, true, true},
      {"white space in front", " \r\n\t" + plist, true, true},
      {"declaration", "<?xml version='1.0' encoding='UTF-8'?>\n" + plist, true, true},
      {"comment with a decoy", "<!-- <plist><dict> -->" + plist, true, true},
      {"public identifier", "<!DOCTYPE plist PUBLIC \"-//x>//EN\" 'http://x/y.dtd'>" + plist, true,
       true},
      {"internal subset",
       "<!DOCTYPE plist [<!ENTITY a \"]>\"><!-- ' ]> --><?p ' ]> ?> %b; ] >" + plist, true, true},
      {"document type with an open quote", "<!DOCTYPE plist PUBLIC \"-//x//EN>\n" + plist, true,
       true},
      {"document type without end", "<!DOCTYPE plist [" + plist, true, true},
      {"comment without end", "<?xml version='1.0'?><!-- " + plist, true, true},
      {"attributes", "<plist a='>' b = \"/>\" c><dict d='e'>" + kGood + "</dict></plist>", true,
       true},
      {"hypertext", "<!DOCTYPE html><html><dict>" + kGood + "</dict></html>", false, false},
      {"hypertext with a declaration", "<?xml version='1.0'?><html>" + plist + "</html>", true,
       false},
      {"array on top", "<plist><array>" + plist + "</array></plist>", true, false},
      {"text on top", "<plist><string>a</string></plist>", true, false},
      {"empty list", "<plist/><dict>" + kGood + "</dict>", true, false},
      {"cut off", "<plist>", true, false},
      {"text form", R"("<plist><dict>" = "a";)", false, false},
      {"nothing", "", false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading = read(row.document);
    EXPECT_EQ(looksLikeXmlTable(row.document), row.looksLike);
    EXPECT_EQ(reading.isTable, row.isTable);
    EXPECT_EQ(reading.pairs, row.isTable ? Pairs({{"good", "G"}}) : Pairs());
    EXPECT_EQ(reading.places.size(), row.isTable ? 0U : 1U);
  }
}

TEST(XmlTable, ReadsTexts) {
  struct Row {
    const char* name;
    std::string content;
    std::string text;
  };
  const Row rows[] = {
      {"white space is kept", " \t a\n b ", " \t a\n b "},
      {"predefined entities", "&lt;a&gt; &amp;amp; &quot;&apos;", "<a> &amp; \"'"},
      {"numeric references", "&#65;&#x42;&#x1f600;&#xE9;&#0067;", "AB\U0001F600\u00E9C"},
      {"references to no character", "&#0;|&#xD800;|&#x110000;|&#99999999999999999999;",
       "\uFFFD|\uFFFD|\uFFFD|\uFFFD"},
      {"malformed references", "&#;|&#x;|&#12z|&#xg;|&#", "\uFFFD|\uFFFD|\uFFFDz|\uFFFDg;|\uFFFD"},
      {"line ends", "a\r\nb\rc\n\rd&#13;", "a\nb\nc\n\nd\r"},
      {"literal section", "a<![CDATA[<b>&amp;\r\n]]]]>c", "a<b>&amp;\n]]c"},
      {"pieces", "a<!-- </string> -->b<?c </string>?>d<![CDATA[]]>&#101;", "abde"},
      {"beyond ASCII", "\u05E9\u05DC\u05D5\u05DD \U0001F468\u200D\U0001F469",
       "\u05E9\u05DC\u05D5\u05DD \U0001F468\u200D\U0001F469"},
      {"zero byte", "a\0b"s, "a\0b"s},
      {"nothing", "", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading =
        read(document("<key>" + row.content + "</key ><string a=''>" + row.content + "</string>"));
    EXPECT_EQ(reading.pairs, Pairs({{row.text, row.text}}));
    EXPECT_TRUE(reading.places.empty());
  }
  EXPECT_EQ(read(document("<key/><string />")).pairs, Pairs({{"", ""}}));
  EXPECT_EQ(read("<plist><dict/></plist>").places.size(), 0U);
  EXPECT_EQ(read(document("<key>a</key><string>1</string><key>a</key><string>2</string>")).pairs,
            Pairs({{"a", "2"}}));
}

TEST(XmlTable, LosesOnlyThePairThatIsDamaged) {
  struct Row {
    const char* name;
    std::string damaged;
    std::vector<std::string> places;
  };
  const std::string key = "<key>a</key>";
  const Row rows[] = {
      {"integer", key + "<integer>1</integer>", {"2:13"}},
      {"flag", key + "<true/>", {"2:13"}},
      {"array", key + "<array><string>b</string><array/><array></array></array>", {"2:13"}},
      {"dictionary", key + "<dict><key>b</key><dict><key>c</key><true/></dict></dict>", {"2:13"}},
      {"flag without end", key + "<true>", {"2:13"}},
      {"array without end", key + "<array><string>b</string>", {"2:13"}},
      {"crossed ends", key + "<array><dict></array>", {"2:13"}},
      {"misspelt value", key + "<strnig>b</string>", {"2:13"}},
      {"misspelt end of a value", key + "<string>b</strnig>", {"2:22"}},
      {"misspelt end of a key", "<key>a</kye><string>b</string>", {"2:7"}},
      {"value without end", key + "<string>b", {"2:22"}},
      {"key without end", "<key>a<string>b</string>", {"2:7"}},
      {"key without value", key, {"2:1"}},
      {"key without value, blemish after it", key + "?", {"2:1", "2:13"}},
      {"value without key", "<string>b</string>", {"2:1"}},
      {"markup in a value", key + "<string>b <b>c</b> d</string>", {"2:23"}},
      {"markup in a key", "<key>a<br/></key><string>b</string>", {"2:7"}},
      {"sign in a value", key + "<string>b < c</string>", {"2:23"}},
      {"unfinished tag", key + "<string", {"2:1", "2:13"}},
      {"open quote in a tag", key + "<string a='>b</string>", {"2:1", "2:13", "2:26"}},
      {"own entity", key + "<string>b&c;d&e;</string>", {"2:22"}},
      {"own entity in a key", "<key>&b;</key><string>c</string>", {"2:6"}},
      {"bare ampersand", key + "<string>b & c</string>", {"2:23"}},
      {"literal section without end", key + "<string><![CDATA[b</string>", {"2:21"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading =
        read(document(kGood + "\n" + row.damaged + "<key>after</key><string>A</string>"));
    EXPECT_TRUE(reading.isTable);
    EXPECT_EQ(reading.pairs, Pairs({{"good", "G"}, {"after", "A"}}));
    EXPECT_EQ(reading.places, row.places);
  }
}

TEST(XmlTable, KeepsWhatStandsAroundABrokenFrame) {
  struct Row {
    const char* name;
    std::string document;
    std::vector<std::string> places;
  };
  const std::string begin = "<plist>\r\n<dict>\r" + kGood;
  const Row rows[] = {
      {"cut off between pairs", begin, {"3:34"}},
      {"cut off in a value",
       begin + "<key>\u00E9\u4E2D\U0001F600</key><string>b",
       {"3:57", "3:57"}},
      {"cut off in a tag", begin + "<key>a</ke", {"3:40", "3:44"}},
      {"dictionary without end", begin + "</plist>", {"3:34"}},
      {"early end", "<plist><dict></dict>\n" + kGood + "</dict></plist>", {"1:14"}},
      {"inner dictionary without end",
       begin + "<key>a</key><dict><key>b</key></dict></plist>",
       {"3:46", "3:71"}},
      {"stray end", begin + "</array></dict></plist>", {"3:34"}},
      {"stray text", begin + "?<![CDATA[<]]>\n</dict>", {"3:34", "3:35"}},
      {"text behind the list", begin + "</dict></plist><", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading = read(row.document);
    EXPECT_TRUE(reading.isTable);
    EXPECT_EQ(reading.pairs, Pairs({{"good", "G"}}));
    EXPECT_EQ(reading.places, row.places);
  }
}

std::string repeated(const std::string& piece, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) {
    all += piece;
  }
  return all;
}

// Reading in quadratic time would take minutes here.
TEST(XmlTable, StaysLinearWhateverComes) {
  constexpr std::size_t kMany = 200000;
  const struct {
    const char* name;
    std::string pairs;
  } rows[] = {
      {"nested dictionaries", "<key>a</key>" + repeated("<dict>", kMany)},
      {"crossed ends", "<key>a</key>" + repeated("<dict>", kMany) + repeated("</array>", kMany)},
      {"comments without end", repeated("<!--", kMany)},
      {"literal sections without end", repeated("<![CDATA[", kMany)},
      {"instructions without end", repeated("<?", kMany)},
      {"open quotes", repeated("<a b='", kMany)},
      {"keys and blemishes", repeated("<key>a</key>?", kMany)},
      {"references", "<key>" + repeated("&#x;", kMany) + "</key><string>" + repeated("&", kMany)},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto start = std::chrono::steady_clock::now();
    const Reading reading = read("<plist><dict>" + kGood + row.pairs);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(reading.pairs, Pairs({{"good", "G"}}));
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
