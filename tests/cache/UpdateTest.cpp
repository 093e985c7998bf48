#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/locale/Localizer.h>

#include "../support/Bytes.h"
#include "../support/MemoryFile.h"
#include "../support/TestApplication.h"
#include "../support/UpdateFixture.h"

namespace orvanta {
namespace {

using test::contentsOf;
using test::payloadOf;
using test::TestApplication;

std::string utf16(std::string_view text) {
  return test::encode(test::kUtf16Little, text);
}

TEST(StringsFile, HoldsEveryPairAsItWasSent) {
  EXPECT_EQ(OVStringCacheUtilities::localizableStringsFile(
                test::tableOf({{"a", "x"}, {"b", ""}, {"", "y"}, {"q", "say \"hi\"\\n"}})),
            "/* */\n\"a\" = \"x\";\n\n/* */\n\"q\" = \"say \"hi\"\\n\";\n\n");
  EXPECT_EQ(OVStringCacheUtilities::localizableStringsFile(test::tableOf({})), "");
}

TEST(StringsFile, IsUtf16LittleEndianWithAMark) {
  for (const char* text : {"", "plain ascii text", "\u00E9\u0628\u6F22\U0001F600"}) {
    EXPECT_EQ(test::writtenAsUtf16(text), utf16(text));
  }
  // Longer than the writer's buffer, characters at every position to where that ends.
  for (std::string text : {"", "a", "ab"}) {
    while (text.size() < 100'000) {
      text += "\u6F22";
    }
    EXPECT_EQ(test::writtenAsUtf16(text), utf16(text));
    EXPECT_EQ(test::writtenAsUtf16(text + "\xFF"), "");
  }
}

TEST(StringsFile, IsSavedWhereItsURLSays) {
  TestApplication app;
  const auto file = app.caches() / "anywhere" / "x y.strings";
  const auto url = URL::fileURLWithPath(file.string(), false);
  OVStringCacheUtilities::saveLanguageStringForLanguage("text", "not used", url);
  EXPECT_EQ(contentsOf(file), utf16("text"));
  OVStringCacheUtilities::saveLanguageStringForLanguage({}, "fr", url);
  EXPECT_EQ(contentsOf(file), utf16("text")) << "absent text is no empty text";
  EXPECT_EQ(app.log,
            std::vector<std::string>({"file " + url.absoluteString().str() + " written to cache"}));
  OVStringCacheUtilities::saveLanguageStringForLanguage(
      "text", "fr", URL::URLWithString("https://host/x.strings"));
  EXPECT_EQ(app.log.back(), "error saving strings file https://host/x.strings");
}

TEST(CacheUpdate, WritesWhatItFindsAndLeavesTheRest) {
  TestApplication app(test::Languages{{"en", {}}});
  OVStringCache cache;
  auto strings = payloadOf({{"fr", {{"a", "x"}, {"b", ""}}}, {"de", {}}, {"it", {{"c", ""}}}});
  strings.add("es", StringsPayload("no dictionary"));
  cache.updateStrings(strings, "app", "main");
  EXPECT_TRUE(cache.cachedLanguages().empty()) << "the names are swapped";
  EXPECT_TRUE(app.log.empty());

  app.download("de", {{"kept", "yes"}});
  std::vector<StringsUpdate> report;
  cache.updateStrings(strings, "main", "app",
                      [&](const StringsUpdate& update) { report.push_back(update); });
  const std::string folder = cache.cacheDirectoryURL().absoluteString().str();
  EXPECT_EQ(app.log, std::vector<std::string>(
                         {"file " + folder + "fr.lproj/Localizable.strings written to cache",
                          "file " + folder + "it.lproj/Localizable.strings written to cache"}));
  ASSERT_EQ(report.size(), 4U);
  EXPECT_EQ(report[0].result, StringsUpdate::Result::written);
  EXPECT_EQ(report[1].result, StringsUpdate::Result::skipped) << "an empty table";
  EXPECT_EQ(report[3].result, StringsUpdate::Result::skipped) << "no table at all";
  EXPECT_EQ(contentsOf(app.cacheFolder() / "fr.lproj/Localizable.strings"),
            utf16("/* */\n\"a\" = \"x\";\n\n"));
  EXPECT_EQ(contentsOf(app.cacheFolder() / "it.lproj/Localizable.strings"), utf16(""));
  EXPECT_EQ(cache.cachedLanguages().size(), 3U) << "no reset was needed";
  EXPECT_EQ(cache.localizedStringForKey("kept", "de"), "yes");

  cache.updateStrings(payloadOf({{"fr", {{"z", "only"}}}}), "main", "app");
  EXPECT_EQ(cache.localizedStringForKey("a", "fr"), "a") << "tables are replaced, not merged";
  EXPECT_EQ(cache.localizedStringForKey("z", "fr"), "only");
}

TEST(CacheUpdate, TakesDotsInNamesAsLevels) {
  TestApplication app;
  OVStringCache cache;
  auto inner = StringsPayload::dictionary({{"zantorData", test::tableOf({{"k", "v"}})}});
  auto payload = StringsPayload::dictionary(
      {{"a", StringsPayload::dictionary(
                 {{"b", StringsPayload::dictionary({{"n", std::move(inner)}})}})}});
  cache.updateStrings(StringsPayload::dictionary({{"fr", std::move(payload)}}), "n", "a.b");
  EXPECT_EQ(cache.localizedStringForKey("k", "fr"), "v");
}

TEST(CacheUpdate, RefusesNamesThatLeadOutOfTheCache) {
  const std::pair<const char*, bool> rows[] = {
      {"pt-BR", true},      {"a/b", true},
      {"a/../b", true},     {"../x", false},
      {"%2e%2e/x", false},  {"..%2Fx", false},
      {"a/../../x", false}, {"../OrvantaLocalizations2/x", false},
      {"x%00y", false},     {"x?y", false},
      {"x#y", false},       {"a b", false},
      {"\u00E9", false},    {"100%", false},
      {"link/x", false},    {"/abs", true},
  };
  for (const auto& [language, isWritten] : rows) {
    TestApplication app;
    const auto outside = app.caches() / "outside";
    std::filesystem::create_directories(outside);
    std::filesystem::create_directories(app.cacheFolder());
    std::filesystem::create_directory_symlink(outside, app.cacheFolder() / "link");
    OVStringCache cache;
    cache.updateStrings(payloadOf({{language, {{"k", "v"}}}, {"fr", {{"k", "v"}}}}), "main", "app");
    const std::size_t expected = isWritten ? 2 : 1;
    EXPECT_EQ(test::tablesBelow(app.caches()), expected) << language;
    EXPECT_EQ(test::tablesBelow(app.cacheFolder()), expected) << language;
    EXPECT_EQ(app.log.front().starts_with("error saving strings file "), !isWritten) << language;
    EXPECT_TRUE(app.log.back().ends_with("fr.lproj/Localizable.strings written to cache"));
    EXPECT_TRUE(std::filesystem::is_empty(outside)) << language;
  }
}

TEST(CacheUpdate, KeepsTheOldTableWhenTheNewOneCannotBeWritten) {
  TestApplication app;
  app.download("fr", {{"k", "old"}});
  OVStringCache cache;
  cache.updateStrings(payloadOf({{"fr", {{"k", "broken \xFF text"}}}}), "main", "app");
  EXPECT_EQ(cache.localizedStringForKey("k", "fr"), "old");
  EXPECT_EQ(app.log.size(), 1U);
  cache.updateStrings(payloadOf({{"no good", {{"k", "v"}}}}), "main", "app");
  EXPECT_EQ(app.log.back(), "error saving strings file (null)");
}

TEST(CacheUpdate, ShowsAtTheNextChangeOfLanguage) {
  TestApplication app({{"en", {{"k", "english"}}}}, {"fr"});
  app.download("fr", {{"k", "old"}, {"only old", "x"}});
  Localizer localizer;
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  const String kept = localizer.localizedStringForKey("k");
  OVStringCache& cache = localizer.stringCache();
  cache.updateStrings(payloadOf({{"fr", {{"k", "new"}}}, {"sv", {{"k", "nytt"}}}}), "main", "app");
  EXPECT_EQ(localizer.localizedStringForKey("k"), "old") << "until the language changes";
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  EXPECT_EQ(localizer.localizedStringForKey("k"), "new");
  EXPECT_EQ(localizer.localizedStringForKey("only old"), "only old");
  EXPECT_EQ(kept, "old") << "a handle outlives its table";
  localizer.changeOrvantaLanguageToPreferredLocales({"sv"});
  EXPECT_EQ(localizer.localizedStringForKey("k"), "nytt");
  cache.clearCache();
  localizer.changeOrvantaLanguageToPreferredLocales({"sv", "en"});
  EXPECT_EQ(localizer.localizedStringForKey("k"), "english") << "what was cleared is gone";
}

TEST(CacheUpdate, FollowsTheFolderThatIsSet) {
  TestApplication app;
  const auto elsewhere = app.caches() / "elsewhere";
  OVStringCache cache;
  cache.setCacheDirectoryURL(URL::fileURLWithPath(elsewhere.string(), true));
  cache.updateStrings(payloadOf({{"fr", {{"k", "v"}}}}), "main", "app");
  EXPECT_EQ(test::tablesBelow(elsewhere), 1U);
  EXPECT_EQ(cache.localizedStringForKey("k", "fr"), "v");

  std::filesystem::create_directories(app.caches() / "deep" / "inner");
  std::filesystem::create_directory_symlink("deep/inner", app.caches() / "link");
  const auto behindLink = app.caches() / "link" / ".." / "tables";
  cache.setCacheDirectoryURL(URL::fileURLWithPath(behindLink.string(), true));
  cache.updateStrings(payloadOf({{"de", {{"k", "v"}}}}), "main", "app");
  EXPECT_EQ(test::tablesBelow(app.caches() / "deep" / "tables"), 1U);
  EXPECT_EQ(cache.localizedStringForKey("k", "de"), "v");
}

}  // namespace
}  // namespace orvanta
