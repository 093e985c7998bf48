#include <algorithm>
#include <cstdlib>
#include <random>

#include <fuzz/mutants/Mutant.h>
#include <fuzz/mutants/Tables.h>
#include <gtest/gtest.h>
#include <tests/support/BinaryList.h>
#include <tests/support/MemorySource.h>
#include <tests/support/SoundTables.h>

#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {
namespace {

using test::encode;
using test::Encoding;
using test::kEncodings;

const std::string kPrefix = "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguage";
constexpr std::size_t kPiece = std::size_t{256} * 1024;

using Entries = std::vector<std::pair<std::string, std::string>>;

Entries entriesOf(const StringTable& table, std::string_view prefix) {
  Entries entries;
  for (const auto& [key, value] : table.entries()) {
    if (key.starts_with(prefix)) {
      entries.emplace_back(key, value);
    }
  }
  return entries;
}

// One probe for files of all forms, as in an application.
Entries probed(std::string_view bytes, std::string_view prefix = kPrefix,
               std::size_t most = std::string_view::npos) {
  static PrefixProbe probe;
  const auto table = probe.entries(
      [&] { return std::make_unique<test::MemorySource>(bytes, most); }, bytes.size(), prefix);
  EXPECT_EQ(entriesOf(*table, prefix).size(), table->size()) << "other keys are in it";
  return entriesOf(*table, prefix);
}

Entries readInFull(std::string_view bytes, std::string_view prefix = kPrefix) {
  const auto table = readStringTable(bytes);
  return table == nullptr ? Entries() : entriesOf(*table, prefix);
}

std::string statement(const std::string& key) {
  return "/* a */\n\"other\" = \"x\";\n\"" + key + "Key\" = \"value\";\n";
}

std::string xml(const std::string& key) {
  return "<?xml version=\"1.0\"?>\n<!DOCTYPE plist SYSTEM \"x\">\n<plist><dict>\n<key>" + key +
         "Key</key><string>Tom &amp; Jerry \\n</string>\n</dict></plist>\n";
}

const std::tuple<const char*, std::string, bool> kSpellings[] = {
    {"quoted", statement(kPrefix), true},
    {"unquoted", kPrefix + "Key = x;", true},
    {"its own value", "\"" + kPrefix + "Key\";", true},
    {"\\U", statement("\\U0043ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"\\U in its midst", statement("CONFIG-DO_NOT_\\U0054RANSLATE-OrvantaLanguage"), true},
    {"octal", statement("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag\\145"), true},
    {"itself", statement("\\CONFIG\\-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"XML", xml(kPrefix), true},
    {"decimal reference", xml("&#67;ONFIG-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"hexadecimal reference", xml("CONFIG-DO_NOT_TRANSLATE-OrvantaLanguag&#x65;"), true},
    {"CDATA", xml("CONFIG<![CDATA[-DO_NOT_TRANSLATE]]>-OrvantaLanguage"), true},
    {"comment within", xml("CONFIG-DO_NOT_TRANSLATE<!-- x -->-OrvantaLanguage"), true},
    {"instruction within", xml("CONFIG<?x y?>-DO_NOT_TRANSLATE-OrvantaLanguage"), true},
    {"behind a line comment that ends beyond ASCII", "// x\u2028" + statement(kPrefix), true},
    {"behind a lone surrogate", R"("x" = "\Ud800";)" + statement(kPrefix), true},
    {"behind invalid UTF-8", "\"x\" = \"\xC3\";" + statement(kPrefix), true},
    {"between comments in comments", "/* x\n" + statement(kPrefix) + "/* y */", true},
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
  for (const auto& [name, text, isHeld] : kSpellings) {
    for (const Encoding& encoding : kEncodings) {
      const std::string bytes = encode(encoding, text);
      const Entries expected = readInFull(bytes);
      EXPECT_EQ(probed(bytes), expected) << name << ", " << encoding.name;
      EXPECT_EQ(!expected.empty(), isHeld) << "the row itself is wrong: " << name;
    }
  }
}

TEST(PrefixProbe, ReadsInPiecesOfAnySize) {
  for (const std::size_t most : {1U, 7U, 64U}) {
    for (const auto& [name, text, isHeld] : kSpellings) {
      EXPECT_EQ(probed(text, kPrefix, most), readInFull(text)) << name;
    }
  }
}

TEST(PrefixProbe, SaysWhenAFileCannotBeRead) {
  class Broken final : public ByteSource {
    std::optional<std::size_t> read(std::span<char> /*buffer*/) override { return std::nullopt; }
  };
  const auto broken = [] { return std::make_unique<Broken>(); };
  EXPECT_EQ(PrefixProbe().entries(broken, 10, kPrefix), nullptr);
  EXPECT_EQ(PrefixProbe().entries(broken, 2 * kPiece, kPrefix), nullptr);
  EXPECT_EQ(PrefixProbe().entries([] { return nullptr; }, 10, kPrefix), nullptr);
}

// What follows a backslash decides whether the probe may pass over it.
TEST(PrefixProbe, NeverPassesOverAnEscapeThatSpells) {
  for (const Encoding& encoding : {kEncodings[0], kEncodings[3]}) {
    for (char32_t escaped = 1; escaped < 0x180; ++escaped) {
      std::string character;
      utf8::append(character, escaped);
      for (const std::size_t at : {std::size_t{0}, std::size_t{9}, kPrefix.size() - 1}) {
        for (const std::size_t replaced : {std::size_t{0}, std::size_t{1}}) {
          std::string key(kPrefix);
          key.replace(at, replaced, "\\" + character);
          const std::string bytes = encode(encoding, statement(key));
          EXPECT_EQ(probed(bytes), readInFull(bytes))
              << encoding.name << ", U+" << std::hex << static_cast<unsigned>(escaped);
        }
      }
    }
  }
}

// At all offsets around the boundaries of pieces and of the blocks that are searched together;
// after a file that needed a full read, and after one that needed only its head.
TEST(PrefixProbe, MissesNothingWhereverItStands) {
  for (const Encoding& encoding : {kEncodings[0], kEncodings[5]}) {
    const std::string filler = test::unitsOf(encoding, "/* */\n\"x\" = \"\u5C0F \\\" \\n\";\n\n");
    std::string bytes(encoding.mark);
    while (bytes.size() < kPiece + 4096) {
      bytes += filler;
    }
    EXPECT_EQ(probed(bytes), Entries()) << "the filler itself must be clean";
    for (const std::string& spelling : {kPrefix, "\\U0043" + kPrefix.substr(1)}) {
      const std::string entry = test::unitsOf(encoding, "\"" + spelling + "Key\" = \"value\";");
      for (const std::size_t seam : {std::size_t{16} * 1024, kPiece}) {
        const std::size_t statements = (seam - encoding.mark.size()) / filler.size() - 1;
        for (std::size_t shift = 0; shift < 260; shift += 9) {
          std::string shifted = bytes;
          shifted.insert(encoding.mark.size() + statements * filler.size(),
                         test::unitsOf(encoding, std::string(shift, ' ')) + entry);
          ASSERT_EQ(probed(shifted), Entries({{kPrefix + "Key", "value"}}))
              << encoding.name << ", " << spelling << ", " << seam << ", " << shift;
        }
      }
    }
  }
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

// Random tables in all forms. Some of their keys begin with the prefix, in some spelling, or almost
// with the prefix. Some of the tables are damaged.
class TableMaker {
 public:
  explicit TableMaker(std::string prefix) : prefix_(std::move(prefix)) {}

  std::string make() {
    const std::size_t form = below(5);
    std::string bytes = form == 0 ? binaryList()
                                  : encode(kEncodings[below(std::size(kEncodings))],
                                           damaged(form == 1 ? xmlList() : statements()));
    if (below(12) == 0 && !bytes.empty()) {
      bytes[below(bytes.size())] = static_cast<char>(below(256));
    }
    return bytes;
  }

 private:
  std::size_t below(std::size_t limit) { return fuzz::below(random_, limit); }

  std::string key() {
    static const char* const kPieces[] = {"\\",  "\\U",   "\\U0061",  "\\141",
                                          "\\-", "\\n",   "\\\n",     "\"",
                                          "/*",  "&#97;", "<!-- -->", "<![CDATA["};
    std::string name = below(3) == 0 ? "ab" : prefix_ + (below(2) == 0 ? "A" : "");
    if (below(4) == 0) {
      name.replace(below(name.size()), below(2), kPieces[below(std::size(kPieces))]);
    }
    return name;
  }

  std::vector<fuzz::RawPair> pairs() {
    auto pairs = fuzz::inventPairs(random_, below(9));
    for (fuzz::RawPair& pair : pairs) {
      pair.key = below(4) == 0 ? pair.key : '"' + key() + '"';
    }
    return pairs;
  }

  std::string statements() {
    static const char* const kEnds[] = {"", "}", ";;", "; v\";", "; w = (x);", "; 'y' = 'z';"};
    const auto& layouts = fuzz::layoutsOf(static_cast<fuzz::Group>(below(3)));
    std::string text = layOut(layouts[below(layouts.size())], pairs());
    const std::size_t semicolon = text.find(';', below(text.size() + 1));
    if (below(3) == 0 && semicolon != std::string::npos) {
      text.replace(semicolon, 1, kEnds[below(std::size(kEnds))]);
    }
    return text;
  }

  std::string xmlList() {
    std::string text = "<plist><dict>";
    for (const fuzz::RawPair& pair : pairs()) {
      text += "<key>" + key() + "</key><string>" + pair.value + "</string>\n";
    }
    return text + "</dict></plist>";
  }

  std::string textObject(const std::string& text) {
    return below(3) == 0 ? test::utf16Object(std::u16string(text.begin(), text.end()))
                         : test::asciiObject(text);
  }

  std::string binaryList() {
    test::BinaryList list;
    list.referenceSize = 1 + below(2);
    list.offsetSize = 2 + below(2);
    for (std::size_t count = below(6); count > 0; --count) {
      const bool isShared = !list.objects.empty() && below(4) == 0;
      const std::uint64_t keyObject =
          isShared ? below(list.objects.size()) : list.object(textObject(key()));
      list.pair(keyObject, list.object(below(6) == 0 ? "\x09" : textObject(key())));
    }
    // A long text that many keys share may exceed the memory that the reader allows.
    if (below(20) == 0) {
      const std::uint64_t shared = list.object(test::asciiObject(std::string(3000, 'l')));
      for (std::size_t count = below(100); count > 0; --count) {
        list.pair(shared, shared);
      }
      list.pair(textObject(key()), textObject(key()));
    }
    return list.bytes();
  }

  std::string damaged(std::string text) {
    for (std::size_t count = below(2) * below(4); count > 0 && text.size() > 8; --count) {
      text = fuzz::inventEdit(random_, text).appliedTo(text);
    }
    return text;
  }

  std::string prefix_;
  std::mt19937 random_{20240607};  // NOLINT(cert-msc51-cpp): a run must be repeatable.
};

// ORVANTA_PROBE_TABLES sets the number of tables for each prefix.
TEST(PrefixProbe, AgreesWithAFullReadOnDamagedTables) {
  const char* const wanted = std::getenv("ORVANTA_PROBE_TABLES");
  const int tables = wanted == nullptr ? 15000 : std::atoi(wanted);
  for (const std::string& prefix : {std::string("abn-U_ex"), kPrefix}) {
    TableMaker maker(prefix);
    int held = 0;
    int sound = 0;
    for (int number = 0; number < tables; ++number) {
      const std::string bytes = maker.make();
      const auto table = readStringTable(bytes);
      const Entries expected = table == nullptr ? Entries() : entriesOf(*table, prefix);
      ASSERT_EQ(probed(bytes, prefix), expected)
          << "table " << number << ": " << testing::PrintToString(bytes);
      sound += test::isSoundTable(bytes, table.get()) ? 1 : 0;
      held += expected.empty() ? 0 : 1;
    }
    EXPECT_GT(held, tables / 3);
    EXPECT_GT(sound, tables / 6);
  }
}

}  // namespace
}  // namespace orvanta::strings
