#include <gtest/gtest.h>
#include <tests/support/TestApplication.h>

#include <orvanta/standard/DeviceLanguages.h>
#include <orvanta/standard/LocalizationRanking.h>
#include <orvanta/standard/StandardLocaleData.h>

namespace orvanta::standard {
namespace {

const std::tuple<const char*, std::map<std::string, const char*>, StringList> kDeviceRows[] = {
    {"nothing is set", {}, StringList::emptyList()},
    {"a language alone", {{"LANG", "fr"}}, {"fr"}},
    {"set and modifier go", {{"LANG", "pt_BR.UTF-8@x"}}, {"pt-BR"}},
    {"a script", {{"LANG", "sr_RS@latin"}}, {"sr-Latn-RS"}},
    {"a script and no region", {{"LANG", "uz@cyrillic"}}, {"uz-Cyrl"}},
    {"a variant is none", {{"LANG", "ca_ES.utf8@valencia"}}, {"ca-ES"}},
    {"C", {{"LANG", "C"}}, StringList::emptyList()},
    {"POSIX", {{"LANG", "POSIX"}}, StringList::emptyList()},
    {"C.UTF-8", {{"LANG", "C.UTF-8"}}, StringList::emptyList()},
    {"a path", {{"LANG", "/usr/lib/locale/x"}}, StringList::emptyList()},
    {"LC_ALL over all", {{"LC_ALL", "de_AT"}, {"LC_MESSAGES", "it"}, {"LANG", "fr"}}, {"de-AT"}},
    {"LC_MESSAGES over LANG", {{"LC_MESSAGES", "it_CH"}, {"LANG", "fr"}}, {"it-CH"}},
    {"an empty one counts as unset", {{"LC_ALL", ""}, {"LANG", "fr"}}, {"fr"}},
    {"C in force hides LANG", {{"LC_ALL", "C"}, {"LANG", "fr"}}, StringList::emptyList()},
    {"the list, then the locale",
     {{"LANGUAGE", "pt_BR:en"}, {"LANG", "de_DE.UTF-8"}},
     {"pt-BR", "en", "de-DE"}},
    {"each once", {{"LANGUAGE", "fr::fr_CA:fr:C"}, {"LANG", "fr_CA.UTF-8"}}, {"fr", "fr-CA"}},
    {"the list with no locale", {{"LANGUAGE", "fr"}}, {"fr"}},
    {"no list in the locale C",
     {{"LANGUAGE", "fr"}, {"LC_ALL", "C.UTF-8"}},
     StringList::emptyList()},
};

TEST(DeviceLanguages, AreWhatTheEnvironmentSays) {
  for (const auto& [name, variables, languages] : kDeviceRows) {
    EXPECT_EQ(deviceLanguagesOf(test::environmentOf(variables)), languages) << name;
  }
}

const std::tuple<const char*, StringList, StringList, StringList> kRankingRows[] = {
    {"in the device's order", {"de", "en", "fr"}, {"fr", "en"}, {"fr", "en"}},
    {"the exact name before its language", {"fr", "fr-CA"}, {"fr-CA"}, {"fr-CA"}},
    {"the language of a region", {"en", "fr"}, {"fr-CA"}, {"fr"}},
    {"a script before the language", {"sr", "sr-Latn"}, {"sr-Latn-RS"}, {"sr-Latn"}},
    {"a region of the language, first by name",
     {"pt-PT", "en", "pt-BR", "pt-AO"},
     {"pt"},
     {"pt-AO"}},
    {"another region rather than nothing", {"en", "pt-BR"}, {"pt-PT"}, {"pt-BR"}},
    {"each once", {"fr", "en"}, {"fr-FR", "fr-CA", "fr", "en-GB", "en"}, {"fr", "en"}},
    {"no other language of the same beginning", {"fil", "en"}, {"fi"}, {"en"}},
    {"Taiwan writes Traditional", {"zh", "zh-Hans", "zh-Hant"}, {"zh-TW"}, {"zh-Hant"}},
    {"Hong Kong", {"zh-Hans", "zh-Hant"}, {"zh-HK"}, {"zh-Hant"}},
    {"Macau", {"zh-Hans", "zh-Hant"}, {"zh-MO"}, {"zh-Hant"}},
    {"China writes Simplified", {"zh", "zh-Hans", "zh-Hant"}, {"zh-CN"}, {"zh-Hans"}},
    {"Singapore", {"zh-Hans", "zh-Hant"}, {"zh-SG"}, {"zh-Hans"}},
    {"Malaysia", {"zh-Hans", "zh-Hant"}, {"zh-MY"}, {"zh-Hans"}},
    {"Chinese alone", {"zh-Hans", "zh-Hant"}, {"zh"}, {"zh-Hans"}},
    {"the script that is said", {"zh-Hans", "zh-Hant"}, {"zh-Hant-CN"}, {"zh-Hant"}},
    {"the region itself", {"zh-TW", "zh-Hant"}, {"zh-TW"}, {"zh-TW"}},
    {"Chinese where its script is not shipped", {"en", "zh-Hans"}, {"zh-TW"}, {"zh-Hans"}},
    {"English where nothing suits", {"de", "en"}, {"ja"}, {"en"}},
    {"English where the device says nothing", {"de", "en"}, StringList::emptyList(), {"en"}},
    {"nothing at all", {"de", "en-GB"}, {"ja"}, StringList::emptyList()},
    {"nothing shipped", StringList::emptyList(), {"en"}, StringList::emptyList()},
    {"case counts", {"FR", "en"}, {"fr"}, {"en"}},
};

TEST(LocalizationRanking, FollowsTheDevice) {
  for (const auto& [name, shipped, device, ranked] : kRankingRows) {
    EXPECT_EQ(rankLocalizations(shipped, device), ranked) << name;
  }
}

TEST(StandardLocales, KnowTheDirectionOfLanguages) {
  const std::pair<platform::LanguageDirection, std::vector<const char*>> kRows[] = {
      {platform::LanguageDirection::rightToLeft,
       {"ar", "he", "ur", "fa", "ps", "sd", "ug", "yi", "dv", "ckb", "iw", "ara", "zdj", "ae"}},
      {platform::LanguageDirection::leftToRight,
       {"en", "fr", "zh", "ja", "ku", "az", "pa", "grc", "fil", "zza", "aa"}},
      {platform::LanguageDirection::unknown,
       {"ar-EG", "AR", "", "a", "arabic", "a1", "ar ", "\xD8\xB9", "ar_"}},
  };
  const auto locales = makeLocaleData({});
  for (const auto& [direction, languages] : kRows) {
    for (const char* language : languages) {
      EXPECT_EQ(locales->characterDirectionForLanguage(language), direction) << language;
    }
  }
  EXPECT_EQ(locales->characterDirectionForLanguage({}), platform::LanguageDirection::unknown);
}

TEST(StandardLocales, LowerCaseWhateverTheLocale) {
  const std::pair<const char*, const char*> kRows[] = {
      {"EN-gb", "en-gb"},
      {"", ""},
      {"\u00C9T\u00C9 \u00DF \u1E9E", "\u00E9t\u00E9 \u00DF \u00DF"},
      {"\u0130I", "i\u0307i"},
      {"\u0391\u03A3 \u0416", "\u03B1\u03C3 \u0436"},
      {"\U00010400\u24B6", "\U00010428\u24D0"},
      {"\xC3(A\xFF\xE2\x82", "\xC3(a\xFF\xE2\x82"},
  };
  const auto locales = makeLocaleData({"fr-CA"});
  for (const auto& [text, lower] : kRows) {
    EXPECT_EQ(locales->lowercaseString(text), lower);
  }
  EXPECT_TRUE(locales->lowercaseString({}).isAbsent());
  const String lower("already");
  EXPECT_TRUE(locales->lowercaseString(lower).isSameObject(lower));
}

TEST(StandardLocales, GiveEachCallerACalendarOfItsOwn) {
  const auto locales = makeLocaleData({"fr-CA", "en"});
  locales->currentCalendar()->setLocale(platform::Locale("de"));
  EXPECT_EQ(locales->currentCalendar()->locale().localeIdentifier(), "fr-CA");
}

}  // namespace
}  // namespace orvanta::standard
