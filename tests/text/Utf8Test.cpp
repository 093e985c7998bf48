#include <optional>

#include <gtest/gtest.h>

#include <orvanta/text/String.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::utf8 {
namespace {

bool isScalar(std::uint32_t value) {
  return value < 0xD800 || (value > 0xDFFF && value <= 0x10FFFF);
}

// The value of `text` if it is exactly one valid sequence. Independent of the library.
std::optional<std::uint32_t> wholeSequence(std::string_view text) {
  constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto first = static_cast<unsigned char>(text[0]);
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  std::uint32_t value = length == 1 ? first : first & (0xFFU >> (length + 1));
  if (text.size() != length || (length > 1 && first < 0xC0) || first > 0xF7) {
    return std::nullopt;
  }
  for (const char next : text.substr(1)) {
    const auto byte = static_cast<unsigned char>(next);
    if (byte < 0x80 || byte > 0xBF) {
      return std::nullopt;
    }
    value = (value << 6) | (byte & 0x3FU);
  }
  return value >= kSmallest[length] && isScalar(value) ? std::optional(value) : std::nullopt;
}

// Whether some valid sequence begins with `text`. These two bytes suffice to complete any.
bool beginsSequence(const std::string& text) {
  return text.size() <= 4 &&
         (wholeSequence(text) || beginsSequence(text + '\x80') || beginsSequence(text + '\xA0'));
}

Decoded expectedOf(const std::string& text) {
  std::size_t length = 1;
  while (length < text.size() && !wholeSequence(text.substr(0, length)) &&
         beginsSequence(text.substr(0, length + 1))) {
    ++length;
  }
  const auto value = wholeSequence(text.substr(0, length));
  return {value.value_or(kReplacement), length, value.has_value()};
}

// All first and second bytes; for the third and fourth, the edges of the valid range.
TEST(Utf8, DecodesEverySequenceAsTheStandardSays) {
  constexpr std::string_view kEdges = "z\x7F\x80\xBF\xC0";
  std::string text(4, '\0');
  for (int pair = 0; pair < 0x10000; ++pair) {
    text[0] = static_cast<char>(pair >> 8);
    text[1] = static_cast<char>(pair & 0xFF);
    for (const char third : kEdges) {
      for (const char fourth : kEdges) {
        text[2] = third;
        text[3] = fourth;
        const auto [codePoint, length, valid] = decode(text);
        const Decoded expected = expectedOf(text);
        ASSERT_TRUE(codePoint == expected.codePoint && length == expected.length &&
                    valid == expected.valid)
            << testing::PrintToString(text);
      }
    }
  }
  const Decoded none = decode("");
  EXPECT_EQ(none.length, 0U);
  EXPECT_FALSE(none.valid);
}

TEST(Utf8, EncodesEveryCharacterAndReplacesOthers) {
  std::string text;
  for (std::uint32_t value = 0; value <= 0x110000; ++value) {
    text = "a";
    append(text, value);
    ASSERT_EQ(wholeSequence(std::string_view(text).substr(1)),
              isScalar(value) ? value : std::uint32_t{kReplacement})
        << value;
  }
}

TEST(Utf8, CountsCutSequencesAsOneCharacter) {
  const std::tuple<const char*, bool, std::size_t> rows[] = {{"", true, 0},
                                                             {"a\u00E9\u20AC", true, 3},
                                                             {"\uFFFF\U00010000", true, 3},
                                                             {"\U0010FFFF\U0001F600", true, 4},
                                                             {"\xF0\x9F\x98", false, 1},
                                                             {"\xF0\x9F\x98z", false, 2},
                                                             {"\xC0\xAF", false, 2},
                                                             {"z\xE2\x82\xE2\x82\xAC", false, 3}};
  for (const auto& [text, valid, units] : rows) {
    EXPECT_EQ(isValid(text), valid) << testing::PrintToString(text);
    EXPECT_EQ(String(text).utf16Length(), units) << testing::PrintToString(text);
  }
  EXPECT_EQ(String().utf16Length(), 0U);
}

}  // namespace
}  // namespace orvanta::utf8
