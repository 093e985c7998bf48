#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/Utf8.h>
#include <orvanta/platform/standard/PrefixProbe.h>
#include <orvanta/platform/standard/strings/StringTableReader.h>

namespace orvanta::platform::standard {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPrefix = "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage";

// A file in memory, which gives no more than `most` bytes at a time.
class MemoryFile final : public ReadableFile {
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

// One way to write a text as bytes.
struct Encoding {
  const char* name;
  std::string_view mark;
  std::size_t unit;
  bool bigEndian;
};

const Encoding kEncodings[] = {
    {"UTF-8", ""sv, 1, false},          {"UTF-8 with a mark", "\xEF\xBB\xBF"sv, 1, false},
    {"UTF-16, little", ""sv, 2, false}, {"UTF-16, little, with a mark", "\xFF\xFE"sv, 2, false},
    {"UTF-16, big", ""sv, 2, true},     {"UTF-16, big, with a mark", "\xFE\xFF"sv, 2, true},
    {"UTF-32, little", ""sv, 4, false}, {"UTF-32, little, with a mark", "\xFF\xFE\0\0"sv, 4, false},
    {"UTF-32, big", ""sv, 4, true},     {"UTF-32, big, with a mark", "\0\0\xFE\xFF"sv, 4, true},
};

// `text` holds nothing beyond the basic plane.
std::string encode(const Encoding& encoding, std::string_view text) {
  std::string bytes(encoding.mark);
  if (encoding.unit == 1) {
    return bytes.append(text);
  }
  while (!text.empty()) {
    const utf8::Decoded next = utf8::decode(text);
    for (std::size_t index = 0; index < encoding.unit; ++index) {
      const std::size_t shift = 8 * (encoding.bigEndian ? encoding.unit - 1 - index : index);
      bytes.push_back(static_cast<char>(next.codePoint >> shift));
    }
    text.remove_prefix(next.length);
  }
  return bytes;
}

std::string statement(const std::string& key) {
  return "/* a */\n\"other\" = \"x\";\n\"" + key + "Key\" = \"value\";\n";
}

std::string xml(const std::string& key) {
  return "<?xml version=\"1.0\"?>\n<!DOCTYPE plist SYSTEM \"x\">\n<plist><dict>\n<key>" + key +
         "Key</key><string>Tom &amp; Jerry \\n</string>\n</dict></plist>\n";
}

enum class Expected { held, unseen };

struct FormRow {
  const char* name;
  std::string text;
  Expected expected;
};

const FormRow kFormRows[] = {
    {"quoted", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},
    {"unquoted", "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageKey = x;", Expected::held},
    {"its own value", "\"CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageKey\";", Expected::held},
    {"\\U", statement("\\U0043ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},
    {"\\U in its midst", statement("CONFIG-DO_NOT_\\U0054RANSLATE-OrvantaLanguage"),
     Expected::held},
    {"octal", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag\\145"), Expected::held},
    {"itself", statement("\\CONFIG\\-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},
    {"XML", xml("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},
    {"decimal reference", xml("&#67;ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},
    {"hexadecimal reference", xml("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag&#x65;"), Expected::held},
    {"CDATA", xml("CONFIG<![CDATA[-DO_NOT_TRANSLATE]]>-OrvantaLanguage"), Expected::held},
    {"comment within", xml("CONFIG-DO_NOT_TRANSLATE<!-- x -->-OrvantaLanguage"), Expected::held},
    {"instruction within", xml("CONFIG<?x y?>-DO_NOT_TRANSLATE-OrvantaLanguage"), Expected::held},

    {"empty", "", Expected::unseen},
    {"usual", statement("anything"), Expected::unseen},
    {"usual XML", xml("anything"), Expected::unseen},
    {"usual escapes", R"("a\n\t\r\"\'\\" = "\a\b\f\v";)", Expected::unseen},
    {"most of the prefix", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag"), Expected::unseen},
    {"another case", statement("CONFIG-DO_NOT_TRANSLATE-Orvantalanguage"), Expected::unseen},
    {"Chinese with the bytes of a backslash", statement("\u5C0F\u5C31\u4E5C\u555C\u5C55\u5C5C"),
     Expected::unseen},
};

TEST(PrefixProbe, SeesEverySpellingInEveryEncoding) {
  for (const FormRow& row : kFormRows) {
    for (const Encoding& encoding : kEncodings) {
      SCOPED_TRACE(std::string(row.name) + ", " + encoding.name);
      const std::string bytes = encode(encoding, row.text);
      const bool isHeld = row.expected == Expected::held;
      EXPECT_EQ(tableHolds(bytes), isHeld) << "the row itself is wrong";
      // Only in UTF-16 with a mark are halves of wide characters told from backslashes. A mistake
      // costs time and nothing else.
      const bool mayBeMistaken =
          encoding.unit == 4 || (encoding.unit == 2 && encoding.mark.empty());
      if (isHeld || !mayBeMistaken) {
        EXPECT_EQ(probeSays(bytes), isHeld);
      }
    }
  }
}

TEST(PrefixProbe, ReadsInPiecesOfAnySize) {
  const std::string held = statement(std::string(kPrefix));
  const std::string unseen = statement("anything");
  PrefixProbe probe;
  for (const std::size_t most : {1U, 7U, 64U}) {
    MemoryFile holding(held, most);
    EXPECT_TRUE(probe.mayHoldKeysWithPrefix(holding, kPrefix)) << most;
    MemoryFile lacking(unseen, most);
    EXPECT_FALSE(probe.mayHoldKeysWithPrefix(lacking, kPrefix)) << most;
  }
}

TEST(PrefixProbe, TakesAnUnreadableFileForOneThatMayHoldAnything) {
  class Broken final : public ReadableFile {
    std::optional<std::size_t> read(std::span<char> /*buffer*/) override { return std::nullopt; }
  } broken;
  EXPECT_TRUE(PrefixProbe().mayHoldKeysWithPrefix(broken, kPrefix));
}

// A binary property list of one dictionary with one pair. An ASCII text of n characters, fewer than
// 15, begins with the n-th letter behind "P".
std::string binaryList(std::string_view keyObject) {
  std::string bytes = "bplist00";
  std::string offsets;
  for (const std::string_view object : {"\xD1\1\2"sv, keyObject, "Qx"sv}) {
    offsets.push_back(static_cast<char>(bytes.size()));
    bytes.append(object);
  }
  const std::size_t table = bytes.size();
  bytes.append(offsets).append("\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3\0\0\0\0\0\0\0\0"sv);
  bytes.append("\0\0\0\0\0\0\0"sv).push_back(static_cast<char>(table));
  return bytes;
}

TEST(PrefixProbe, SeesTheTextsOfBinaryLists) {
  const std::string ascii = "\x5F\x10\x27" + std::string(kPrefix);
  const std::string wide = "\x6F\x10\x27" + encode({"", ""sv, 2, true}, kPrefix);
  for (const std::string& key : {ascii, wide}) {
    const std::string bytes = binaryList(key);
    EXPECT_TRUE(tableHolds(bytes));
    EXPECT_TRUE(probeSays(bytes));
  }
  const std::string other = binaryList(R"(S\U0)"sv);
  EXPECT_EQ(readStringTable(other)->size(), 1U);
  EXPECT_FALSE(probeSays(other)) << "binary lists know no escapes";
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
      const std::string piece = encode({"", ""sv, encoding.unit, encoding.bigEndian}, spelling);
      const std::string mark(encoding.mark);
      std::string filler = mark;
      // In UTF-16 with halves of characters that look like backslashes.
      const char* nothing = encoding.unit == 2 ? "/* \u5C0F */ \"q\" = " : "/* nothing */ \"q\" = ";
      while (filler.size() < 2 * kChunk + 4096) {
        filler += encode({"", ""sv, encoding.unit, encoding.bigEndian}, nothing);
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

struct KeysRow {
  std::vector<const char*> keys;
  const char* prefix;
};

const KeysRow kKeysRows[] = {
    {{"CONFIG-Language", "CONFIG-Version"}, ""},
    {{"CONFIG-Language", "CONFIG-Length"}, "CONFIG-L"},
    {{"CONFIG-Language"}, "CONFIG-Language"},
    {{"CONFIG-Language", "CONFIG-Language.x"}, "CONFIG-Language"},
    {{"CONFIG-Language key"}, "CONFIG-Language"},
    {{"CONFIG\\-Language"}, ""},
    {{"CONFIG-Langu\xC3\xA4ge"}, "CONFIG-Langu"},
    {{"anything", ""}, ""},
    {{}, ""},
};

TEST(PrefixProbe, TakesThePrefixThatTheKeysShare) {
  for (const KeysRow& row : kKeysRows) {
    const std::vector<HashedKey> keys(row.keys.begin(), row.keys.end());
    EXPECT_EQ(prefixToProbeFor(keys), row.prefix) << (row.keys.empty() ? "none" : row.keys.front());
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
