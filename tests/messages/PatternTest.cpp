#include <limits>
#include <memory_resource>

#include <gtest/gtest.h>

#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/PluralKeyword.h>
#include <orvanta/messages/pattern/MessageFormat.h>
#include <orvanta/standard/StandardLocaleData.h>

namespace orvanta {
namespace {

// Covers what the comparison with ICU cannot: missing and mistyped arguments, isolates, limits.

const MessageLanguage& language(const char* locale) {
  static const auto data = standard::makeLocaleData({});
  static std::map<std::string, MessageLanguage> languages;
  return languages.try_emplace(locale, locale, *data).first->second;
}

std::string formatted(const char* locale, std::string_view pattern,
                      const MessageArguments& arguments) {
  PatternParts parts;
  if (const auto error = parsePattern(pattern, parts)) {
    return "error at " + std::to_string(error->position);
  }
  std::pmr::string text;
  formatMessage(pattern, parts, arguments, language(locale), text);
  return std::string(text);
}

std::string filled(std::string_view text, const MessageArguments& arguments) {
  std::pmr::string out;
  formatPlaceholders(text, arguments, language("en"), out);
  return std::string(out);
}

TEST(PluralKeyword, IsTheBranchThatAMessageTakes) {
  const std::tuple<const char*, MessageValue, PluralType, const char*> rows[] = {
      {"en", 1, PluralType::cardinal, "one"},
      {"en", Decimal{1, 1}, PluralType::cardinal, "other"},
      {"en", 23, PluralType::ordinal, "few"},
      {"ar-EG", 11U, PluralType::cardinal, "many"},
      {"xx", 1, PluralType::cardinal, "other"},
      {"en", "1", PluralType::cardinal, "other"},
  };
  for (const auto& [locale, number, type, keyword] : rows) {
    EXPECT_EQ(pluralKeyword(locale, number, type), keyword) << locale;
  }
}

TEST(PlainNumber, ShowsTheDigitsThatTheValueAllows) {
  const std::vector<std::pair<PlainNumber, const char*>> rows = {
      {PlainNumber(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808"},
      {PlainNumber(std::numeric_limits<std::uint64_t>::max(), 5), "18446744073709551610"},
      {PlainNumber(3U, 5), "-2"},
      {PlainNumber(std::numeric_limits<std::int64_t>::min(), 1), "-9223372036854776000"},
      {PlainNumber(7, 0.5), "6.5"},
      {PlainNumber(0.1 + 0.2), "0.3"},
      {PlainNumber(1e23), "100000000000000000000000"},
      {PlainNumber(9.9996), "10"},
      {PlainNumber(0.0025), "0.002"},
      {PlainNumber(0.0035), "0.004"},
      {PlainNumber(0.00051), "0.001"},
      {PlainNumber(-0.0001), "0"},
      {PlainNumber(123456.5e-9), "0"},
      {PlainNumber(Decimal{-2, 2}), "-2.00"},
      {PlainNumber(Decimal{0.05, 1}), "0.0"},
      {PlainNumber(Decimal{0.5, -4}), "0"},
      {PlainNumber(Decimal{5e-324, 99}), "0.000000000000000000"},
      {PlainNumber(-std::numeric_limits<double>::infinity()), "-∞"},
      {PlainNumber(std::numeric_limits<double>::quiet_NaN()), "NaN"},
  };
  for (const auto& [number, text] : rows) {
    EXPECT_EQ(number.text(), std::string_view(text));
  }
  EXPECT_EQ(PlainNumber(std::numeric_limits<double>::max()).text().size(), 309U);
}

TEST(MessageFormat, KeepsWhatItCannotFillIn) {
  const String absent;
  const std::tuple<const char*, std::vector<MessageArgument>, const char*> rows[] = {
      {"{a}, {0} and {n, plural, other {#}}", {}, "{a}, {0} and {n}"},
      {"{a} {b}", {{"a", absent}, {"b", static_cast<const char*>(nullptr)}}, "{a} {b}"},
      {"{0} {1} {2}", {3, "Ada"}, "3 Ada {2}"},
      {"{0} {a}", {{"a", 1}}, "{0} 1"},
      {"{n, plural, =3 {a} one {b} other {# items}}", {{"n", "many"}}, "many items"},
      {"{n, select, 1 {a} other {b}}{m, select, 1 {a} other {b}}", {{"n", 1}, {"m", "x"}}, "ab"},
      {"{n, plural, one {a} other {b}}", {{"n", std::numeric_limits<double>::infinity()}}, "b"},
      {"{n, plural, one {#} other {# s}}", {{"n", Decimal{1, 1}}}, "1.0 s"},
      {"{n, plural, one {#} other {# s}}", {{"n", 1.0001}}, "1"},
      {"{a}", {{"a", "{b} '{' # {n, plural, "}, {"b", 1}}, "{b} '{' # {n, plural, "},
  };
  for (const auto& [pattern, arguments, text] : rows) {
    EXPECT_EQ(formatted("en", pattern, arguments), text) << pattern;
  }
}

TEST(MessageFormat, IsolatesTextsOfAnotherDirectionOnly) {
  const std::tuple<const char*, const char*, bool> rows[] = {
      {"en", "Ada", false},     {"en", "ليلى", true},   {"en", "12:30", false},
      {"en-GB", "日本", false}, {"ar", "Ada", true},    {"ar", "ليلى 3", false},
      {"ar", "12:30", true},    {"fa-IR", "…!", false}, {"he", "\u200E", true},
      {"en", "\u2067", true},   {"", "Ada", true},
  };
  for (const auto& [locale, argument, isIsolated] : rows) {
    const std::string text = isIsolated ? "\u2068" + std::string(argument) + "\u2069" : argument;
    EXPECT_EQ(formatted(locale, "{a}", {{"a", argument}}), text) << locale;
    EXPECT_EQ(formatted(locale, "{n}", {{"n", -3}}), "-3") << locale;
  }
}

TEST(MessagePattern, TellsWhereItIsWrong) {
  const std::pair<const char*, std::size_t> rows[] = {{"Hello {", 7},
                                                      {"Hello {name", 11},
                                                      {"Hello {}", 7},
                                                      {"{01}", 1},
                                                      {"{a b}", 3},
                                                      {"{d, date}", 4},
                                                      {"{d, number, integer}", 4},
                                                      {"{n, plural}", 10},
                                                      {"{n, plural, one {x}}", 19},
                                                      {"{n, plural, other {x} offset:1}", 28},
                                                      {"{n, plural, offset: other {x}}", 20},
                                                      {"{n, plural, =x other {x}}", 13},
                                                      {"{n, plural, other x}", 18},
                                                      {"{n, plural, {x} other {x}}", 12},
                                                      {"{n, plural, other {x}", 21}};
  for (const auto& [pattern, position] : rows) {
    EXPECT_EQ(formatted("en", pattern, {}), "error at " + std::to_string(position)) << pattern;
  }
}

TEST(MessagePattern, LimitsNesting) {
  const auto nested = [](int depth) {
    std::string open;
    std::string close;
    for (int level = 0; level < depth; ++level) {
      open += "{a,select,other{";
      close += "}}";
    }
    return open + "deep" + close;
  };
  EXPECT_EQ(formatted("en", nested(kMostNestedPatterns), {{"a", 1}}), "deep");
  EXPECT_TRUE(formatted("en", nested(kMostNestedPatterns + 1), {}).starts_with("error at 527"));
  EXPECT_TRUE(formatted("en", nested(100'000), {}).starts_with("error"));
}

TEST(FormatString, FillsPlaceholdersByPosition) {
  const std::tuple<const char*, std::vector<MessageArgument>, const char*> rows[] = {
      {"%@ has %d files, 100%%", {"Ada", 3}, "Ada has 3 files, 100%"},
      {"%2$@ %1$ld %@", {3, "Ada"}, "Ada 3 3"},
      {"%@ %@ %3$@ %@", {"only"}, "only %@ %3$@ %@"},
      {"%d %s %.1f %llu %i", {"text", 4, 5, -6, 7.25}, "text 4 5 -6 7.25"},
      {"%.2f %f %5.1f %.0f|", {1.005, 2.5, 3.25, 0.5}, "1.00 2.500000   3.2 0|"},
      {"%02d:%02d %3d %-3d %03d", {7, 42, 5, 6, -1}, "07:42   5 6   -01"},
      {"%x %X %o %g %c", {255, 3054, 8, 0.5, "A"}, "ff BEE 10 0.5 A"},
      {"%4@|%2@", {"né", "long"}, "  né|long"},
      {"100 % d, %n %p %*d %0$@ %123$@ %999d %", {1}, "100 % d, %n %p %*d %0$@ %123$@ %999d %"},
      {"%1$s %2$s", {"%@ %d", "%1$@"}, "%@ %d %1$@"},
  };
  for (const auto& [text, arguments, expected] : rows) {
    EXPECT_EQ(filled(text, arguments), expected) << text;
  }
}

}  // namespace
}  // namespace orvanta
