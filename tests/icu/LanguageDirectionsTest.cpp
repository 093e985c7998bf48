#include <set>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <orvanta/standard/LanguageDirections.h>

namespace orvanta::standard {
namespace {

// The release of ICU that contains the CLDR release of the table.
constexpr int kIcuOfTheTable = 72;  // CLDR 42

// Compares with ICU for every possible code of two or three letters, which includes all of ISO
// 639-1, -2 and -3. ICU replaces codes like "per" and "arb" by the current ones first.
TEST(LanguageDirections, AreThoseOfIcu) {
  if (U_ICU_VERSION_MAJOR_NUM != kIcuOfTheTable) {
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
    const bool ours = directionOfLanguage(code) == platform::LanguageDirection::rightToLeft;
    rightToLeft += ours ? 1U : 0U;
    if (icu != ours) {
      differing.insert(code);
    }
  }
  // Ancient Greek, for which CLDR names the Cypriot syllabary: left out on purpose, see the table.
  EXPECT_EQ(differing, std::set<std::string>{"grc"});
  EXPECT_GT(rightToLeft, 100U);
}

}  // namespace
}  // namespace orvanta::standard
