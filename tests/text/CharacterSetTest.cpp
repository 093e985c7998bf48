#include <gtest/gtest.h>

#include <orvanta/text/CharacterSet.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {
namespace {

TEST(CharacterSet, HoldsExactlyTheWhiteSpaceOfUnicode) {
  constexpr std::u32string_view kSpaces =
      U"\t \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
      U"\u202F\u205F\u3000";
  constexpr std::u32string_view kLineBreaks = U"\n\v\f\r\u0085\u2028\u2029";
  for (char32_t character = 0; character < 0x11000; ++character) {
    std::string text;
    utf8::append(text, character);
    std::string between = text;
    between.append("x").append(text);
    const bool isSpace = kSpaces.find(character) != std::u32string_view::npos;
    const bool isBreak = kLineBreaks.find(character) != std::u32string_view::npos;
    ASSERT_EQ(stringByTrimming(between, CharacterSet::whitespace), isSpace ? "x" : between)
        << std::hex << static_cast<unsigned>(character);
    ASSERT_EQ(stringByTrimming(between, CharacterSet::whitespaceAndNewline),
              isSpace || isBreak ? "x" : between)
        << std::hex << static_cast<unsigned>(character);
  }
}

TEST(CharacterSet, TrimsTheEndsAlone) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {" \t\u3000", ""},
      {"\u00A0", ""},
      {" a b ", "a b"},
      {"\u00E9 ", "\u00E9"},
      {" \u00E9", "\u00E9"},
      {"a ", "a"},
      {" a", "a"},
      {"\u2003a\u2003\u2003", "a"},
      {"\U0001F600 ", "\U0001F600"},
      {"a\xA0", "a\xA0"},            // No character: the last byte of U+00A0 alone.
      {"\xE3\x80 a", "\xE3\x80 a"},  // U+3000 cut off.
      {"a \xE3\x80", "a \xE3\x80"},
      {"a\x80\x80\x80\x80 ", "a\x80\x80\x80\x80"},
      {"\x80\x80\x80\x80\x80", "\x80\x80\x80\x80\x80"},
  };
  for (const auto& [text, trimmed] : rows) {
    const String whole = text;
    const String rest = stringByTrimming(whole, CharacterSet::whitespace);
    EXPECT_EQ(rest, trimmed) << testing::PrintToString(text);
    EXPECT_EQ(rest.isSameObject(whole), whole == trimmed) << testing::PrintToString(text);
  }
  EXPECT_TRUE(stringByTrimming({}, CharacterSet::whitespace).isAbsent());
}

}  // namespace
}  // namespace orvanta
