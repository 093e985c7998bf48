#include <random>

#include <tests/support/Bytes.h>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/text/StringList.h>
#include <orvanta/text/Utf8.h>

#include "../reader/TableReading.h"

namespace orvanta::strings {
namespace {

using namespace std::string_literals;
using test::encode;
using test::Encoding;
using test::kEncodings;
using test::repeated;

std::string transcoded(EncodedText text, std::size_t room) {
  Utf8Transcoder transcoder(text);
  std::string out;
  std::vector<char> piece(room);
  while (!transcoder.atEnd()) {
    const std::size_t size = transcoder.transcode(piece.data(), room);
    EXPECT_GT(size, 0U);
    out.append(piece.data(), size);
  }
  return out;
}

TEST(TextEncoding, IsDetectedWithAndWithoutAMark) {
  const TableRow rows[] = {
      {"statement", "\"k\" = \"\u00E9\u05E9\U0001F600\";\n", "k=\u00E9\u05E9\U0001F600"},
      {"low bytes of zero", "\"\u4E00\u0100\" = \"\u4E00\u4E00\";", "\u4E00\u0100=\u4E00\u4E00"},
      {"one character beyond ASCII in front", "\"\u4E16\u754C\" = \"\u4E16\";",
       "\u4E16\u754C=\u4E16"},
      {"comment", "/* \u4E16 */\n\"k\" = \"v\";", "k=v"},
      {"shortest", "k;", "k=k"},
      {"a NUL inside", "\"a\" = \"\0\0b\";"s, "a=\0\0b"s},
      {"nothing", "", ""},
  };
  for (const Encoding& encoding : kEncodings) {
    SCOPED_TRACE(encoding.name);
    for (const TableRow& row : rows) {
      checkTables({{row.name, encode(encoding, row.bytes), row.pairs}});
    }
  }
  checkTables({{"a zero byte of UTF-8", "\"\0\" = \"\u2022 \u2022\";"s, "\0=\u2022 \u2022"s},
               {"three zero bytes of UTF-8", "\"\0\0\0\" = \"1\";"s, "\0\0\0=1"s},
               {"three zero bytes in front of UTF-8", "\0\0\0\"a\" = \"1\";"s, "a=1", "1:1"},
               {"UTF-32 of one character", "k\0\0\0"s, kNoTable, "1:2"}});
}

TEST(TextEncoding, ReplacesWhatIsNoCharacter) {
  using enum TextEncoding;
  const std::tuple<const char*, TextEncoding, std::string, std::string> rows[] = {
      {"stray bytes", kBrokenUtf8, "a\x80\xFFz", "a\uFFFD\uFFFDz"},
      {"overlong", kBrokenUtf8, "\xC0\xAF\xE0\x80\xAF", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"surrogate in UTF-8", kBrokenUtf8, "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
      {"cut off", kBrokenUtf8, "a\xF0\x9F\x98", "a\uFFFD"},
      {"cut off by a character", kBrokenUtf8, "\xE2\x82z\xE2\x82\xAC", "\uFFFDz\u20AC"},
      {"lone high", kUtf16Little, "\x3D\xD8z\0"s, "\uFFFDz"},
      {"lone low", kUtf16Big, "\xDE\0\0z"s, "\uFFFDz"},
      {"swapped", kUtf16Little, "\x00\xDE\x3D\xD8"s, "\uFFFD\uFFFD"},
      {"high at the end", kUtf16Little, "z\0\x3D\xD8"s, "z\uFFFD"},
      {"odd byte", kUtf16Big, "\0z\0"s, "z"},
      {"surrogate in UTF-32", kUtf32Big, "\0\0\xD8\0\0\0\0z"s, "\uFFFDz"},
      {"beyond the last", kUtf32Little, "\0\0\x11\0z\0\0\0\xFF\xFF\xFF\xFF"s, "\uFFFDz\uFFFD"},
      {"torn unit", kUtf32Little, "z\0\0\0z\0\0"s, "z"},
      {"invalid bytes to the end", kBrokenUtf8, std::string(100, '\xFF'), repeated("\uFFFD", 100)},
      {"Latin-1", kLatin1, "a\x80\xE9\xFF", "a\u0080\u00E9\u00FF"},
      {"windows-1252", kWindows1252, "\x80\x81\x9F\xA0", "\u20AC\uFFFD\u0178\u00A0"},
  };
  for (const auto& [name, encoding, bytes, text] : rows) {
    SCOPED_TRACE(name);
    EXPECT_EQ(transcoded({encoding, bytes}, 256), text);
    EXPECT_EQ(transcoded({encoding, bytes}, Utf8Transcoder::kSlack), text);
  }
  const std::string_view cut = "a\u20AC";
  EXPECT_EQ(transcoded({kBrokenUtf8, cut.substr(0, 3)}, 256), "a\uFFFD") << "cut off in memory";
}

TEST(TextEncoding, ReportsWhatIsNoCharacter) {
  const auto inUtf16 = [](std::string_view text) { return encode(test::kUtf16Little, text); };
  const std::string sound = inUtf16("\"a\" = \"1\";\n\"b\" = \"2\";");
  const auto cut = [&](std::size_t bytes) { return sound.substr(0, sound.size() - bytes); };
  checkTables({
      {"UTF-8", "\"a\" = \"\xE9\";\n\"b\" = \"\xE9\";;", "a=\uFFFD|b=\uFFFD", "1:8 2:11"},
      {"UTF-8 before other damage", "\"\xE9\" = 1;\n;", "\uFFFD=1", "1:2 2:1"},
      {"UTF-8, in a comment alone", "// \xE9", "", "1:4"},
      {"UTF-16", inUtf16("a = 1;\n/* ") + "\0\xDC"s + inUtf16(" */").substr(2), "a=1", "2:4"},
      {"UTF-16 without its last byte", cut(1), "a=1|b=2", "2:10 2:10"},
      {"UTF-16 without its last byte, in a value", cut(5), "a=1|b=", "2:7 2:8"},
      {"damage in UTF-16", inUtf16("a = 1;\nb;c;\nd = = 1;"), "a=1|b=b|c=c", "3:5"},
  });
}

// Random texts reach every path of the block conversion at every distance from a block's edges, and
// random sizes of the output stop it everywhere.
TEST(TextEncoding, TranscodesLikeOneCharacterAtATime) {
  std::mt19937 random(7);
  const std::u32string_view characters[] = {U"ab\"=;\n", U"\u00E9\u0440\u07FF\u0080",
                                            U"\u0800\u20AC\uFFFD\uD7FF\uE000",
                                            U"\U0001F600\U0010FFFF"};
  for (int round = 0; round < 400; ++round) {
    std::string text;
    while (text.size() < 300) {
      const auto& kind = characters[random() % (1 + static_cast<unsigned>(round) % 4)];
      const char32_t character = kind[random() % kind.size()];
      for (auto times = 1 + random() % 40; times > 0; --times) {
        utf8::append(text, character);
      }
    }
    for (const Encoding& encoding : kEncodings) {
      if (!encoding.mark.empty()) {
        const std::string bytes = encode(encoding, text);
        const std::size_t room = Utf8Transcoder::kSlack + random() % 200;
        ASSERT_EQ(transcoded(detectEncoding(bytes), room), text) << encoding.name;
      }
    }
  }
}

TEST(TextEncoding, JudgesUtf8LikeOneCharacterAtATime) {
  std::mt19937 random(11);
  // Six whole characters, then what is none.
  const StringList pieces = componentsSeparatedBy(
      ' ',
      "a \u00E9 \u20AC \u0905 \uD7A3 \U0001F600 \xC0\x80 \xE0\x9F\x80 \xED\xA0\x80 "
      "\xF4\x90\x80\x80 \xF0\x8F\x80\x80 \xF5\x80\x80\x80 \x80 \xC3 \xE2\x82");
  int valid = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 70, 'a');
    for (const std::size_t size = random() % 400; text.size() < size;) {
      text += pieces[random() % (random() % 160 == 0 ? pieces.size() : 6)].view();
    }
    text.resize(text.size() - (text.empty() ? 0 : random() % 2));
    ASSERT_EQ(isValidUtf8(text), utf8::isValid(text)) << testing::PrintToString(text);
    valid += isValidUtf8(text) ? 1 : 0;
  }
  for (std::size_t at = 0; at < 300; ++at) {
    for (const std::string_view piece : {"\xFF", "\xE2\x82", "\u20AC"}) {
      const std::string text = std::string(at, 'a').append(piece) + std::string(300 - at, 'a');
      ASSERT_EQ(isValidUtf8(text), piece == "\u20AC") << at;
    }
  }
  EXPECT_GT(valid, 2000);
  EXPECT_LT(valid, 18000);
}

// UTF-16 is read through a window. Statements and comments that are longer than the window, or
// cross its edges, must be read as in UTF-8.
TEST(TextEncoding, ReadsLongTextsAlike) {
  std::string text;
  for (int index = 0; index < 3000; ++index) {
    text += "/* \u00E9 */\n\"key" + std::to_string(index) + "\" = \"";
    for (int length = index % 97; length > 0; --length) {
      text += index % 3 == 0 ? "\u4E16" : "v";
    }
    text += "\";\n";
    if (index % 1000 == 500) {
      text += "/*" + std::string(70'000, '*') + "*/ long = \"" + std::string(70'000, '\n') + "\";";
    }
  }
  for (const char* end : {"", "\"bad = \"1\";\n", "// no line break"}) {
    const std::string whole = text + end;
    const TableReading expected = readTable(whole);
    EXPECT_EQ(expected.table->size(), 3001U);
    EXPECT_EQ(expected.places.empty(), !whole.ends_with("1\";\n"));
    const TableReading reading = readTable(encode(test::kUtf16Little, whole));
    EXPECT_TRUE(reading.pairs == expected.pairs);
    EXPECT_EQ(reading.places, expected.places);
    // The same through repaired UTF-8.
    EXPECT_TRUE(readTable(whole + "// \xFF").pairs == expected.pairs);
  }
}

}  // namespace
}  // namespace orvanta::strings
