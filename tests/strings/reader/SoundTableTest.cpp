#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <tests/support/Bytes.h>
#include <tests/support/SoundTables.h>

#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {
namespace {

using test::encode;
using test::Encoding;
using test::isSoundTable;
using test::kEncodings;

constexpr std::size_t kPiece = std::size_t{16} * 1024;

bool isSound(std::string_view bytes, std::size_t most = std::string_view::npos) {
  return isSoundTable(bytes, readStringTable(bytes).get(), most);
}

std::string statements(std::size_t size) {
  std::string text;
  for (std::size_t number = 0; text.size() < size; ++number) {
    text += "/* */\n\"key " + std::to_string(number) + "\" = \"\u0416 \u5C0F \U0001F600 \\n\";\r\n";
  }
  return text;
}

// Whatever stands at the end of a piece: each part of a statement, of a character, of a pair of
// surrogates, of a line break.
TEST(SoundTable, IsReadWhereverThePiecesEnd) {
  const std::string text = statements(kPiece + 512);
  for (const Encoding& encoding : kEncodings) {
    for (std::size_t shift = 0; shift < 64; ++shift) {
      std::string shifted = text;
      shifted.insert(0, shift, '\n');
      EXPECT_EQ(isSound(encode(encoding, shifted)), encoding.unit < 4)
          << encoding.name << ", " << shift;
    }
  }
}

TEST(SoundTable, IsReadInPiecesOfAnySize) {
  const std::string bytes = encode(test::kUtf16Little, statements(2 * kPiece));
  for (const std::size_t most : {1U, 3U, 1000U}) {
    EXPECT_TRUE(isSound(bytes, most)) << most;
  }
}

TEST(SoundTable, LeavesEverythingElseToAFullRead) {
  const std::string sound = statements(3 * kPiece);
  const std::string tail = "\"last\" = \"one\";\n";
  const struct {
    const char* name;
    std::string bytes;
    bool isSound;
  } kRows[] = {
      {"empty", "", true},
      {"a mark alone", "\xFF\xFE", true},
      {"braces", "{" + sound + "}", true},
      {"a brace that is not closed", "{" + sound, false},
      {"a statement behind the braces", "{" + sound + "}" + tail, false},
      {"a long statement", sound + "\"long\" = \"" + std::string(kPiece, 'x') + "\";\n", true},
      {"one that is too long", "\"long\" = \"" + std::string(2 * kPiece, 'x') + "\";\n" + sound,
       false},
      {"a comment that is too long", sound + "/*" + std::string(3 * kPiece, '\n') + "*/", false},
      {"no line break", std::string(3 * kPiece, ' ') + tail, false},
      {"a damaged statement at the end", sound + "\"x\" = ;", false},
      {"a sign that is missing", "\"a\" \"b\";\n" + sound, false},
      {"an invalid character in a late piece", sound + "\"x\" = \"\xC3\";\n", false},
      {"one in a comment", "// \xED\xA0\x80\n" + sound, false},
      {"an escaped lone surrogate", sound + "\"x\" = \"\\Ud800\";\n", false},
      {"a torn unit", encode(test::kUtf16Little, sound) + "\n", false},
      {"a lone surrogate at the end", encode(test::kUtf16Little, sound) + "\x01\xD8", false},
      {"XML", "<plist><dict><key>a</key><string>b</string></dict></plist>", false},
      {"the word that begins a binary list", "bplist00;", false},
      {"the same in a long line", "bplist00;" + std::string(kPiece, ' ') + "\n", false},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(isSound(row.bytes), row.isSound) << row.name;
  }
}

TEST(SoundTable, IsNotReadFromAFileThatFails) {
  class FailsLate final : public ByteSource {
    std::optional<std::size_t> read(std::span<char> buffer) override {
      return std::exchange(isFirst_, false) ? source_.read(buffer) : std::nullopt;
    }
    std::string bytes_ = statements(3 * kPiece);
    test::MemorySource source_{bytes_};
    bool isFirst_ = true;
  };
  FailsLate file;
  EXPECT_EQ(readSoundTable(file, 3 * kPiece), nullptr);
  test::MemorySource large("x;");
  EXPECT_EQ(readSoundTable(large, 0xFFFFFFFF), nullptr);
}

// A size that was true when the file was looked at.
TEST(SoundTable, IsReadWithAnyExpectation) {
  const std::string bytes = statements(2 * kPiece);
  for (const std::size_t expected : {std::size_t{0}, bytes.size() / 9, 90 * bytes.size()}) {
    test::MemorySource file(bytes);
    const auto table = readSoundTable(file, expected);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->size(), readStringTable(bytes)->size());
  }
}

}  // namespace
}  // namespace orvanta::strings
