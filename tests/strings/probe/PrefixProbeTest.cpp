#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <tests/support/BinaryList.h>

#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {
namespace {

using test::encode;
using test::Encoding;
using test::kEncodings;

constexpr std::string_view kPrefix = "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage";

// A file in memory, which gives no more than `most` bytes at a time.
class MemoryFile final : public ByteSource {
 public:
  explicit MemoryFile(std::string_view bytes, std::size_t most = std::string_view::npos)
      : bytes_(bytes), most_(most) {}

  std::optional<std::size_t> read(std::span<char> buffer) override {
    const std::size_t count = std::min({bytes_.size(), buffer.size(), most_});
    std::copy_n(bytes_.begin(), count, buffer.begin());
    bytes_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view bytes_;
  std::size_t most_;
};

bool probeSays(std::string_view bytes, std::string_view prefix = kPrefix) {
  static PrefixProbe probe;  // One for files of all forms, as in an application.
  MemoryFile file(bytes);
  return probe.mayHoldKeysWithPrefix(file, prefix);
}

bool tableHolds(std::string_view bytes, std::string_view prefix = kPrefix) {
  const auto table = readStringTable(bytes);
  if (table == nullptr) {
    return false;
  }
  const auto entries = table->entries();
  return std::any_of(entries.begin(), entries.end(), [&](const StringTable::Entry& entry) {
    return entry.key.starts_with(prefix);
  });
}

std::string statement(const std::string& key) {
  return "/* a */\n\"other\" = \"x\";\n\"" + key + "Key\" = \"value\";\n";
}

std::string xml(const std::string& key) {
  return "<?xml version=\"1.0\"?>\n<!DOCTYPE plist SYSTEM \"x\">\n<plist><dict>\n<key>" + key +
         "Key</key><string>Tom &amp; Jerry \\n</string>\n</dict></plist>\n";
}

struct FormRow {
  const char* name;
  std::string text;
  bool isHeld;
};

const FormRow kFormRows[] = {
    {"quoted", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"unquoted", "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageKey = x;", true},
    {"its own value", "\"CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageKey\";", true},
    {"\\U", statement("\\U0043ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"\\U in its midst", statement("CONFIG-DO_NOT_\\U0054RANSLATE-OrvantaLanguage"), true},
    {"octal", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag\\145"), true},
    {"itself", statement("\\CONFIG\\-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"XML", xml("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"decimal reference", xml("&#67;ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"hexadecimal reference", xml("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag&#x65;"), true},
    {"CDATA", xml("CONFIG<![CDATA[-DO_NOT_TRANSLATE]]>-OrvantaLanguage"), true},
    {"comment within", xml("CONFIG-DO_NOT_TRANSLATE<!-- x -->-OrvantaLanguage"), true},
    {"instruction within", xml("CONFIG<?x y?>-DO_NOT_TRANSLATE-OrvantaLanguage"), true},

    {"empty", "", false},
    {"usual", statement("anything"), false},
    {"usual XML", xml("anything"), false},
    {"usual escapes", R"("a\n\t\r\"\'\\" = "\a\b\f\v";)", false},
    {"most of the prefix", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag"), false},
    {"another case", statement("CONFIG-DO_NOT_TRANSLATE-Orvantalanguage"), false},
    {"Chinese with the bytes of a backslash", statement("\u5C0F\u5C31\u4E5C\u555C\u5C55\u5C5C"),
     false},
};

TEST(PrefixProbe, SeesEverySpellingInEveryEncoding) {
  for (const FormRow& row : kFormRows) {
    for (const Encoding& encoding : kEncodings) {
      SCOPED_TRACE(std::string(row.name) + ", " + encoding.name);
      const std::string bytes = encode(encoding, row.text);
      EXPECT_EQ(tableHolds(bytes), row.isHeld) << "the row itself is wrong";
      // Only in UTF-16 with a mark are halves of wide characters told from backslashes. A mistake
      // costs time and nothing else.
      const bool mayBeMistaken =
          encoding.unit == 4 || (encoding.unit == 2 && encoding.mark.empty());
      if (row.isHeld || !mayBeMistaken) {
        EXPECT_EQ(probeSays(bytes), row.isHeld);
      }
    }
  }
}

TEST(PrefixProbe, ReadsInPiecesOfAnySize) {
  for (const std::size_t most : {1U, 7U, 64U}) {
    for (const FormRow& row : kFormRows) {
      MemoryFile file(row.text, most);
      EXPECT_EQ(PrefixProbe().mayHoldKeysWithPrefix(file, kPrefix), row.isHeld) << row.name;
    }
  }
}

TEST(PrefixProbe, TakesAnUnreadableFileForOneThatMayHoldAnything) {
  class Broken final : public ByteSource {
    std::optional<std::size_t> read(std::span<char> /*buffer*/) override { return std::nullopt; }
  } broken;
  EXPECT_TRUE(PrefixProbe().mayHoldKeysWithPrefix(broken, kPrefix));
}

TEST(PrefixProbe, SeesTheTextsOfBinaryLists) {
  const auto listOf = [](const std::string& keyObject) {
    return test::BinaryList().pair(keyObject, test::asciiObject("x")).bytes();
  };
  for (const std::string& bytes :
       {listOf(test::asciiObject(std::string(kPrefix))),
        listOf(test::utf16Object(std::u16string(kPrefix.begin(), kPrefix.end())))}) {
    EXPECT_TRUE(tableHolds(bytes));
    EXPECT_TRUE(probeSays(bytes));
  }
  EXPECT_FALSE(probeSays(listOf(test::asciiObject(R"(\U0)")))) << "binary lists know no escapes";
}

// What follows a backslash decides whether the probe may pass over it.
TEST(PrefixProbe, NeverPassesOverAnEscapeThatSpells) {
  for (const Encoding& encoding : kEncodings) {
    for (char32_t escaped = 1; escaped < 0x180; ++escaped) {
      std::string character;
      utf8::append(character, escaped);
      for (const std::size_t at : {std::size_t{0}, std::size_t{9}, kPrefix.size() - 1}) {
        for (const std::size_t replaced : {std::size_t{0}, std::size_t{1}}) {
          std::string key(kPrefix);
          key.replace(at, replaced, "\\" + character);
          const std::string bytes = encode(encoding, statement(key));
          EXPECT_TRUE(probeSays(bytes) || !tableHolds(bytes))
              << encoding.name << ", U+" << std::hex << static_cast<unsigned>(escaped);
        }
      }
    }
  }
}

// In the midst of a chunk and where two chunks meet.
TEST(PrefixProbe, MissesNothingWhereverItStands) {
  constexpr std::size_t kChunk = std::size_t{256} * 1024;
  const std::string spellings[] = {std::string(kPrefix), "\\U0043", "\\103"};
  for (const Encoding& encoding : {kEncodings[0], kEncodings[3], kEncodings[5], kEncodings[7]}) {
    for (const std::string& spelling : spellings) {
      const std::string piece = test::unitsOf(encoding, spelling);
      const std::string mark(encoding.mark);
      std::string filler = mark;
      // In UTF-16 with halves of characters that look like backslashes.
      const char* nothing = encoding.unit == 2 ? "/* \u5C0F */ \"q\" = " : "/* nothing */ \"q\" = ";
      while (filler.size() < 2 * kChunk + 4096) {
        filler += test::unitsOf(encoding, nothing);
      }
      for (const std::size_t seam : {std::size_t{3600}, kChunk, 2 * kChunk}) {
        for (std::size_t before = 0; before < 4 * kPrefix.size() + 8; before += encoding.unit) {
          std::string bytes = filler;
          const std::size_t at =
              (seam - before - mark.size()) / encoding.unit * encoding.unit + mark.size();
          bytes.replace(at, piece.size(), piece);
          ASSERT_TRUE(probeSays(bytes)) << encoding.name << ", " << spelling << ", " << at;
        }
      }
      EXPECT_FALSE(probeSays(filler)) << "the filler itself must be clean";
    }
  }
}

// Random files from pieces that are likely to come together as the prefix in one way or another.
TEST(PrefixProbe, AgreesWithTheTableOnRandomFiles) {
  constexpr std::string_view kShortPrefix = "abn-U_ex";
  const std::string pieces[] = {
      "abn-U_ex", "abn-",   "U_ex",     "a",         "b",   "n",      "-",       "U",
      "_",        "e",      "x",        "\"",        "\"",  "'",      "=",       ";",
      "\" = \"",  "\";",    "\\",       "\\a",       "\\n", "\\U",    "\\U0061", "\\141",
      "\\-",      "\\\\",   "\\\n",     "/*",        "*/",  "//",     "\n",      " ",
      "{",        "}",      "&#97;",    "&amp;",     "&#x", "<",      "</",      "<!--",
      "-->",      "<?",     "?>",       "<![CDATA[", "]]>", "\u5C61", "\u0161",  "0061",
      "<key>",    "</key>", "<string>", "</string>",
  };
  std::mt19937 random(20240607);  // NOLINT(cert-msc51-cpp): a run must be repeatable.
  const auto below = [&](std::size_t end) { return static_cast<std::size_t>(random()) % end; };
  std::size_t held = 0;
  std::size_t passedOver = 0;
  for (int round = 0; round < 60000; ++round) {
    const bool isXml = below(3) == 0;
    std::string text = isXml ? "<plist><dict><key>" : "\"";
    for (std::size_t count = below(12); count > 0; --count) {
      text += pieces[below(std::size(pieces))];
    }
    if (below(2) == 0) {
      // The prefix itself with something in it.
      std::string key(kShortPrefix);
      key.replace(below(key.size()), below(2), pieces[below(std::size(pieces))]);
      text = isXml ? "<plist><dict><key>" + key : "\"" + key;
    }
    text += isXml ? "</key><string>x</string></dict></plist>" : R"(" = "x";)";
    const std::string bytes = encode(kEncodings[below(std::size(kEncodings))], text);
    const bool says = probeSays(bytes, kShortPrefix);
    const bool holds = tableHolds(bytes, kShortPrefix);
    held += holds ? 1 : 0;
    passedOver += says ? 0 : 1;
    ASSERT_TRUE(says || !holds) << text;
  }
  EXPECT_GT(held, 1000U);
  EXPECT_GT(passedOver, 1000U);
}

TEST(PrefixProbe, TakesThePrefixThatTheKeysShare) {
  const std::pair<std::vector<const char*>, const char*> kRows[] = {
      {{"CONFIG-Language", "CONFIG-Version"}, ""},
      {{"CONFIG-Language", "CONFIG-Length"}, "CONFIG-L"},
      {{"CONFIG-Language"}, "CONFIG-Language"},
      {{"CONFIG-Language", "CONFIG-Language.x"}, "CONFIG-Language"},
      {{"CONFIG-Language key"}, "CONFIG-Language"},
      {{"CONFIG\\-Language"}, ""},
      {{"CONFIG-Langu\u00E4ge"}, "CONFIG-Langu"},
      {{"anything", ""}, ""},
      {{}, ""},
  };
  for (const auto& [names, prefix] : kRows) {
    const std::vector<HashedKey> keys(names.begin(), names.end());
    EXPECT_EQ(prefixToProbeFor(keys), prefix) << (names.empty() ? "none" : names.front());
  }
}

}  // namespace
}  // namespace orvanta::strings
