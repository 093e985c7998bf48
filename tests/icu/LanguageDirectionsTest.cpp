#include <set>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <orvanta/standard/LanguageDirections.h>

namespace orvanta::standard {
namespace {

// The releases of ICU and of CLDR, from which the table was taken, that belong together.
constexpr int kIcuOfTheTable = 72;  // CLDR 42

template <typename Visit>
void forEachCode(const Visit& visit) {
  std::string code;
  for (char first = 'a'; first <= 'z'; ++first) {
    for (char second = 'a'; second <= 'z'; ++second) {
      code = {first, second};
      visit(code);
      for (char third = 'a'; third <= 'z'; ++third) {
        visit(code + third);
      }
    }
  }
}

// As ICU answers once it has put the code of today in place of one that stands for it ("per",
// "arb"). Every code that ISO 639-1, -2 and -3 could have given out, and so every one that they
// have.
TEST(LanguageDirections, AreThoseOfIcu) {
  if (U_ICU_VERSION_MAJOR_NUM != kIcuOfTheTable) {
    GTEST_SKIP() << "ICU " << U_ICU_VERSION << " knows other data than CLDR 42";
  }
  std::set<std::string> differing;
  std::size_t rightToLeft = 0;
  forEachCode([&](const std::string& code) {
    const bool icu = icu::Locale::createCanonical(code.c_str()).isRightToLeft() != 0;
    const bool ours = directionOfLanguage(code) == platform::LanguageDirection::rightToLeft;
    rightToLeft += ours ? 1U : 0U;
    if (icu != ours) {
      differing.insert(code);
    }
  });
  // Ancient Greek, which CLDR gives the Cypriot syllabary: left out on purpose, see the table.
  EXPECT_EQ(differing, std::set<std::string>{"grc"});
  EXPECT_GT(rightToLeft, 100U);
}

}  // namespace
}  // namespace orvanta::standard
