#include <set>

#include <gtest/gtest.h>

#include <orvanta/locale/Localizer.h>

#include "../support/TestApplication.h"

namespace orvanta {
namespace {

// Known languages, requests, what they resolve to; absent: nothing matched.
const std::tuple<const char*, std::vector<std::string>, StringList, StringList> kMatchRows[] = {
    {"a regional request keeps its name where its language is known",
     {"en-GB", "en", "fr"},
     {"en-IE", "fr-CA"},
     {"en-GB", "fr-CA"}},
    {"Traditional lands on Simplified where no Traditional ships",
     {"en", "zh-Hans"},
     {"zh-TW"},
     {"zh-Hans"}},
    {"New Zealand asks for Australian English", {"en", "en-AU"}, {"en-NZ"}, {"en-AU"}},
    {"which English serves under its name", {"en"}, {"en-NZ"}, {"en-AU"}},
    {"a plain language", {"en"}, {"en"}, {"en"}},
    {"a language is not tried twice", {"de"}, {"en"}, {}},
    {"duplicates stay", {"en-GB"}, {"en-GB", "en-IE", "en-JE"}, {"en-GB", "en-GB", "en-GB"}},
    {"another region does not serve", {"en-GB"}, {"en-US"}, {}},
    {"order stays", {"de"}, {"de-AT", "de"}, {"de-AT", "de"}},
    {"blanks are trimmed", {"en-GB"}, {"  en-IE\t\u00A0"}, {"en-GB"}},
    {"a line break is not, and stays on what is accepted", {"en"}, {"en-X\n"}, {"en-X\n"}},
    {"a line break keeps a request from the table", {"en-GB"}, {"en-IE\n"}, {}},
    {"an empty request is the main bundle", {"en"}, {"", "  "}, {"", ""}},
    {"no request is English unchecked", {}, StringList::emptyList(), {"en"}},
    {"an absent one too", {"fr"}, {}, {"en"}},
    {"nothing of it known", {"en"}, {"xx"}, {}},
    {"case counts", {"en"}, {"EN"}, {}},
    {"an underscore does not separate", {"en"}, {"en_GB"}, {}},
};

TEST(Matching, ResolvesRequestsAgainstWhatExists) {
  for (const auto& [what, known, requested, matched] : kMatchRows) {
    test::TestApplication app;
    for (const std::string& language : known) {
      app.ship(language, {});
    }
    Localizer localizer;
    EXPECT_EQ(localizer.availableLocalesFromArray(requested), matched) << what;
  }
}

TEST(Matching, TakesTheLanguageOfAnIdentifier) {
  const std::pair<String, String> rows[] = {
      {"en-GB", "en"},
      {"zh-Hant-TW", "zh"},
      {"fil", "fil"},
      {"-GB", ""},
      {"en_GB", "en_GB"},
      {"en", "en"},
      {"", ""},
      {"a-", "a-"},
      {"--", "--"},
      {"-ab", ""},
      {{}, {}},
      {" ar-x", " ar"},
      // Fewer than 3 UTF-16 code units, whatever their number of bytes.
      {"\u00E9-", "\u00E9-"},
      {"-\u6F22", "-\u6F22"},
      {"\u00E9a-", "\u00E9a"},
      {"ab\u00E9-", "ab\u00E9"},
      {"\u6F22\u6F22-", "\u6F22\u6F22"},
      {"\U0001F600-", "\U0001F600"},
      {"\u6F22-\u6F22", "\u6F22"},
  };
  for (const auto& [identifier, language] : rows) {
    const String found = Localizer::languageOnlyFromString(identifier);
    EXPECT_EQ(found, language) << identifier;
    EXPECT_EQ(found.isSameObject(identifier), identifier == language) << identifier;
  }
}

TEST(Matching, ExpandsBareLanguagesWithTheCountry) {
  EXPECT_EQ(Localizer::localesFromLanguages({"en", "fr-CA", "fil", "de"}, "CH"),
            StringList({"en-CH", "en", "fr-CA", "fil", "de-CH", "de"}));
  EXPECT_EQ(Localizer::localesFromLanguages({"en", "", "x"}, ""),
            StringList({"en-", "en", "", "x"}));
  EXPECT_EQ(Localizer::localesFromLanguages({"en"}, {}), StringList({"en-(null)", "en"}));
  EXPECT_EQ(Localizer::localesFromLanguages({}, "CH"), StringList::emptyList());
}

TEST(Matching, KnowsThreeRightToLeftLanguages) {
  test::TestApplication app;
  const Localizer localizer;
  for (const char* identifier : {"ar", "ar-SA", "he-IL", "ur-PK"}) {
    EXPECT_TRUE(localizer.rightToLeftOrientationForLocale(identifier)) << identifier;
  }
  for (const String& identifier :
       {String("fa"), String("AR"), String("ar_SA"), String(""), String(" ar"), String()}) {
    EXPECT_FALSE(localizer.rightToLeftOrientationForLocale(identifier)) << identifier;
  }
}

TEST(Matching, BuildsItsTableOnceUntilItIsTakenAway) {
  test::TestApplication app;
  Localizer localizer;
  const FallbackTable first = localizer.fallbackTable();
  EXPECT_TRUE(first.isSameObject(localizer.fallbackTable()));
  std::map<std::string, std::set<std::string>> rows;
  for (const auto& [requested, instead] : first) {
    rows[instead.str()].insert(requested.str());
    EXPECT_EQ(first.find(instead.view()), nullptr) << requested << ": one step must be final";
  }
  const std::map<std::string, std::set<std::string>> kRows = {
      {"en-AU", {"en-NZ"}},
      {"en-GB", {"en-GG", "en-IE", "en-IM", "en-JE"}},
      {"es-ES", {"es-AD", "es-GQ", "es-IC", "es-PH"}},
      {"pt-PT", {"pt-AO", "pt-CV", "pt-GW", "pt-MO", "pt-MZ", "pt-ST", "pt-TL"}},
      {"zh-Hans", {"zh", "zh-CN", "zh-MY", "zh-SG"}},
      {"zh-Hant",
       {"zh-AU", "zh-BN", "zh-GB", "zh-HK", "zh-ID", "zh-MO", "zh-PH", "zh-TH", "zh-TW", "zh-US",
        "zh-VN"}}};
  EXPECT_EQ(rows, kRows);
  localizer.setFallbackTable({});
  EXPECT_EQ(localizer.fallbackTable().size(), 31U);
  localizer.setFallbackTable({{"tlh", "en"}});
  EXPECT_EQ(localizer.localeWithFallbacksApplied(" tlh "), "en");
  EXPECT_EQ(localizer.localeWithFallbacksApplied("zh"), "zh");
  EXPECT_TRUE(localizer.localeWithFallbacksApplied({}).isAbsent());
}

}  // namespace
}  // namespace orvanta
