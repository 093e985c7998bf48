#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/plurrule.h>

#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/plural/PluralRules.h>
#include <orvanta/standard/LanguageDirections.h>

namespace orvanta {
namespace {

// CLDR 42 is the release of the table of directions, and follows that of the plural rules.
constexpr int kIcuOfCldr42 = 72;

// Compares with ICU for every possible code of two or three letters, which includes all of ISO
// 639-1, -2 and -3. ICU replaces codes like "per" and "arb" by the current ones first.
TEST(LanguageDirections, AreThoseOfIcu) {
  if (U_ICU_VERSION_MAJOR_NUM != kIcuOfCldr42) {
    GTEST_SKIP() << "ICU " << U_ICU_VERSION << " knows other data than CLDR 42";
  }
  std::set<std::string> differing;
  std::size_t rightToLeft = 0;
  // The third letter may be missing.
  for (int number = 0; number < 26 * 26 * 27; ++number) {
    std::string code = {static_cast<char>('a' + number / 27 / 26),
                        static_cast<char>('a' + number / 27 % 26)};
    code.append(number % 27 == 0 ? 0 : 1, static_cast<char>('a' - 1 + number % 27));
    const bool icu = icu::Locale::createCanonical(code.c_str()).isRightToLeft() != 0;
    const bool ours =
        standard::directionOfLanguage(code) == platform::LanguageDirection::rightToLeft;
    rightToLeft += ours ? 1U : 0U;
    if (icu != ours) {
      differing.insert(code);
    }
  }
  // Ancient Greek, for which CLDR names the Cypriot syllabary: left out on purpose, see the table.
  EXPECT_EQ(differing, std::set<std::string>{"grc"});
  EXPECT_GT(rightToLeft, 100U);
}

struct Sample {
  PlainNumber ours;
  icu::number::FormattedNumber icus;
};

// Whole numbers up to 1,100, powers of ten, and numbers with 1 and 2 digits behind the point.
std::vector<Sample> samples() {
  std::vector<Sample> all;
  const auto add = [&](double value, int fractionDigits) {
    UErrorCode status = U_ZERO_ERROR;
    all.push_back({PlainNumber(Decimal{value, fractionDigits}),
                   icu::number::NumberFormatter::withLocale(icu::Locale::getRoot())
                       .precision(icu::number::Precision::fixedFraction(fractionDigits))
                       .formatDouble(value, status)});
  };
  for (int number = 0; number <= 1100; ++number) {
    add(number, 0);
    add(number / 10.0, 1);
    add(number / 100.0, 2);
    add(number + 0.2, 1);
    add(number + 0.21, 2);
  }
  for (int exponent = 4; exponent <= 17; ++exponent) {
    for (const int fractionDigits : {0, 1, 2}) {
      add(std::pow(10.0, exponent), fractionDigits);
    }
  }
  return all;
}

std::set<std::string> locales() {
  std::set<std::string> names = {"xx", "en-001", "pt-BR", "sr-Latn-RS", "zh-Hant"};
  for (const PluralRow& row : pluralTable()) {
    names.emplace(row.locale);
  }
  std::int32_t count = 0;
  const icu::Locale* available = icu::Locale::getAvailableLocales(count);
  for (std::int32_t index = 0; index < count; ++index) {
    names.emplace(available[index].getLanguage());
  }
  return names;
}

std::string icuCategory(const icu::PluralRules& rules, const icu::number::FormattedNumber& number) {
  UErrorCode status = U_ZERO_ERROR;
  std::string keyword;
  rules.select(number, status).toUTF8String(keyword);
  return keyword;
}

TEST(PluralRules, AreThoseOfIcuForEveryLanguage) {
  if (U_ICU_VERSION_MAJOR_NUM != kIcuOfCldr42) {
    GTEST_SKIP() << "ICU " << U_ICU_VERSION << " differs from CLDR 41 elsewhere";
  }
  const std::vector<Sample> numbers = samples();
  std::map<std::string, std::string> differing;  // By language and kind, the first number.
  for (const std::string& locale : locales()) {
    const PluralRow& ours = pluralRulesForLocale(locale);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale = icu::Locale::forLanguageTag(locale, status);
    for (const bool isOrdinal : {false, true}) {
      const std::unique_ptr<icu::PluralRules> rules(icu::PluralRules::forLocale(
          icuLocale, isOrdinal ? UPLURAL_TYPE_ORDINAL : UPLURAL_TYPE_CARDINAL, status));
      ASSERT_TRUE(U_SUCCESS(status)) << locale;
      for (const Sample& number : numbers) {
        const PluralOperands operands = PluralOperands::of(number.ours.text());
        const auto category = isOrdinal ? ours.ordinal(operands) : ours.cardinal(operands);
        const std::string icuSays = icuCategory(*rules, number.icus);
        if (keywordOf(category) != icuSays) {
          differing.emplace(locale + (isOrdinal ? " ordinal" : ""),
                            std::string(number.ours.text()) + ": " +
                                std::string(keywordOf(category)) + ", ICU " + icuSays);
          break;
        }
      }
    }
  }
  // The languages whose rules CLDR 42 changed, and no other.
  const std::map<std::string, std::string> changed = {
      {"ca", "1000000: other, ICU many"}, {"he", "0.0: other, ICU one"},
      {"is", "0.2: one, ICU other"},      {"iw", "0.0: other, ICU one"},
      {"mo", "101: other, ICU few"},      {"mt", "2: few, ICU two"},
      {"ro", "101: other, ICU few"},
  };
  EXPECT_EQ(differing, changed);
}

}  // namespace
}  // namespace orvanta
