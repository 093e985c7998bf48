#include <atomic>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <set>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/locale/Localizer.h>

#include "../support/Bytes.h"
#include "../support/MemoryFile.h"
#include "../support/WatchedApplication.h"

namespace orvanta {
namespace {

using test::contentsOf;
using test::payloadOf;
using test::repeated;
using test::TestApplication;

std::string utf16(std::string_view text) {
  return test::encode(test::kUtf16Little, text);
}

TEST(StringsFile, HoldsPairsUnescaped) {
  EXPECT_EQ(OVStringCacheUtilities::localizableStringsFile(
                test::tableOf({{"a", "x"}, {"b", ""}, {"", "y"}, {"q", "say \"hi\"\\n"}})),
            "/* */\n\"a\" = \"x\";\n\n/* */\n\"q\" = \"say \"hi\"\\n\";\n\n");
  EXPECT_EQ(OVStringCacheUtilities::localizableStringsFile(test::tableOf({})), "");
}

TEST(StringsFile, IsUtf16LittleEndianWithAMark) {
  for (const char* text : {"", "plain ascii text", "\u00E9\u0628\u6F22\U0001F600"}) {
    EXPECT_EQ(test::writtenAsUtf16(text), utf16(text));
  }
  // Longer than the writer's buffer, so that its end divides a character at each of its bytes.
  for (const std::string character : {"\u00E9", "\u6F22", "\U0001F600"}) {
    for (std::string text; text.size() < 4; text += 'a') {
      const std::size_t shift = text.size();
      while (text.size() < 100'000) {
        text += character;
      }
      EXPECT_EQ(test::writtenAsUtf16(text), utf16(text)) << character << ' ' << shift;
      for (const std::string& broken :
           {text + '\xFF', text + character.substr(0, 1), text.substr(0, 99'000) + '\xFF' + text}) {
        EXPECT_EQ(test::writtenAsUtf16(broken), "") << character << ' ' << shift;
      }
      text.resize(shift);
    }
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
  const std::string folder =
      URL::fileURLWithPath(app.caches().string(), true).absoluteString().str();
  for (const std::string& refused :
       {std::string("https://host/x.strings"), folder + "x?y.lproj/Localizable.strings",
        folder + "x#y.lproj/Localizable.strings"}) {
    OVStringCacheUtilities::saveLanguageStringForLanguage("text", "fr",
                                                          URL::URLWithString(refused));
    EXPECT_EQ(app.log.back(), "error saving strings file " + refused);
  }
  EXPECT_EQ(test::tablesBelow(app.caches()), 1U);
}

TEST(CacheUpdate, WritesTablesAndKeepsOthers) {
  TestApplication app(test::Languages{{"en", {}}});
  OVStringCache cache;
  auto strings = payloadOf({{"fr", {{"a", "x"}, {"b", ""}}}, {"de", {}}, {"it", {{"c", ""}}}});
  strings.add("es", StringsPayload("no dictionary"));
  strings.add("pt", test::payloadWith(StringsPayload::dictionary({{"a", StringsPayload()}})));
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
  ASSERT_EQ(report.size(), 5U);
  EXPECT_EQ(report[0].result, StringsUpdate::Result::written);
  EXPECT_EQ(report[1].result, StringsUpdate::Result::skipped) << "an empty table";
  EXPECT_EQ(report[3].result, StringsUpdate::Result::skipped) << "no table at all";
  EXPECT_EQ(report[4].result, StringsUpdate::Result::skipped) << "no text in the table";
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

void expectUpdate(const String& language, bool isWritten, const char* reason) {
  SCOPED_TRACE(language.view().substr(0, 40));
  TestApplication app;
  const auto outside = app.caches() / "outside";
  std::filesystem::create_directories(outside);
  std::filesystem::create_directories(app.cacheFolder());
  std::filesystem::create_directory_symlink(outside, app.cacheFolder() / "link");
  auto strings = payloadOf({{"fr", {{"k", "v"}}}});
  strings.add(language, test::payloadWith(test::tableOf({{"k", "v"}})));
  StringsUpdate update{};
  OVStringCache cache;
  cache.updateStrings(strings, "main", "app", [&](const StringsUpdate& last) { update = last; });
  EXPECT_EQ(update.result == StringsUpdate::Result::written, isWritten);
  EXPECT_EQ(update.reason.isAbsent(), reason == nullptr);
  EXPECT_TRUE(reason == nullptr || update.reason.view().find(reason) != std::string_view::npos)
      << update.reason;
  const std::size_t expected = isWritten ? 2 : 1;
  EXPECT_EQ(test::tablesBelow(app.caches()), expected);
  EXPECT_EQ(test::tablesBelow(app.cacheFolder()), expected);
  EXPECT_EQ(app.log.back().starts_with("error saving strings file "), !isWritten);
  EXPECT_EQ(cache.localizedStringForKey("k", "fr"), "v");
  EXPECT_TRUE(std::filesystem::is_empty(outside));
}

TEST(CacheUpdate, RefusesNamesThatLeadOutOfTheirFolder) {
  // Whether it is written, a part of the reason (null: none), and the names.
  const std::tuple<bool, const char*, std::vector<String>> rows[] = {
      {true, nullptr, {"pt-BR", "a/b", "a/../b", "/abs", repeated("a/", 15) + "b"}},
      {true, "begins with", {".x", "a/.x/b", ""}},
      {false, "", {"../x", "%2e%2e/x", "..%2Fx", "a/../../x", "../OrvantaLocalizations2/x"}},
      {false, "", {"x%00y", "x?y", "x#y", "link/x", repeated("n", 300)}},
      {false, "another language's", {"fr.lproj/Localizable.strings/x", "a/../%66r.lproj/x"}},
      {false, "no URL", {"a b", "\u00E9", "100%", String()}},
      {false, "too many parts", {repeated("a/", 16) + "b"}},
      {false, "too long", {repeated("a/", 650'000)}},
  };
  for (const auto& [isWritten, reason, languages] : rows) {
    for (const String& language : languages) {
      expectUpdate(language, isWritten, reason);
    }
  }
}

// At each file operation of an update, another process removes one of the folders, or puts a link
// in its place.
TEST(CacheUpdate, StaysInTheCacheWhileItsFoldersAreExchanged) {
  const struct {
    const char* folder;
    bool isLinked;
  } rows[] = {{"", false}, {"a", false}, {"a/fr.lproj", false}, {"a", true}, {"a/fr.lproj", true}};
  for (const auto& row : rows) {
    bool isOver = false;
    for (int moment = 0; !isOver; ++moment) {
      SCOPED_TRACE(testing::Message() << row.folder << ' ' << row.isLinked << ' ' << moment);
      test::WatchedApplication app;
      const auto outside = app.caches() / "outside";
      std::filesystem::create_directories(outside / "a" / "fr.lproj");
      app.download("a/fr", {{"k", "old"}});
      const auto folder = app.cacheFolder() / row.folder;
      int operation = 0;
      bool isInPlace = false;
      const StringsUpdate update = app.update("a/fr", {{"k", "v"}}, [&](auto name, auto /*path*/) {
        if (operation++ == moment) {
          std::filesystem::remove_all(folder);
          if (row.isLinked) {
            std::filesystem::create_directory_symlink(outside / row.folder, folder);
          }
        }
        isInPlace = isInPlace || (operation <= moment && name == "rename");
        return test::Fault::none();
      });
      isOver = operation <= moment;
      EXPECT_EQ(test::tablesBelow(outside), 0U);
      if (!row.isLinked) {
        EXPECT_EQ(update.result, StringsUpdate::Result::written) << update.reason;
        EXPECT_EQ(test::tablesBelow(app.caches()), isInPlace && !isOver ? 0U : 1U);
      }
    }
  }
}

TEST(CacheUpdate, TouchesTheDiskOnlyForATable) {
  test::WatchedApplication app;
  app.download("fr", {{"k", "old"}});
  const auto abandoned = app.cacheFolder() / "fr.lproj" / ".1f.orvanta-unfinished";
  const auto nested = app.cacheFolder() / "a" / "b.lproj" / ".1f.orvanta-unfinished";
  const auto foreign = {app.cacheFolder() / ".2f.orvanta-unfinished",
                        app.cacheFolder() / "other" / ".2f.orvanta-unfinished",
                        app.cacheFolder() / "fr.lproj" / ".x.orvanta-unfinished",
                        app.cacheFolder() / "fr.lproj" / "1f.orvanta-unfinished"};
  for (const auto& file : foreign) {
    test::writeFile(file, "x");
  }
  test::writeFile(abandoned, "x");
  test::writeFile(nested, "x");
  OVStringCache cache;
  app.setHook([](auto name, auto path) {
    ADD_FAILURE() << name << ' ' << path;
    return test::Fault::none();
  });
  cache.updateStrings(payloadOf({{"fr", {}}}), "main", "app");
  app.setHook({});
  EXPECT_TRUE(std::filesystem::exists(abandoned));
  cache.updateStrings(payloadOf({{"de", {{"k", "v"}}}}), "main", "app");
  EXPECT_FALSE(std::filesystem::exists(abandoned));
  cache.updateStrings(payloadOf({{"a/b", {{"k", "v"}}}}), "main", "app");
  EXPECT_FALSE(std::filesystem::exists(nested)) << "found when its language is written";
  for (const auto& file : foreign) {
    EXPECT_TRUE(std::filesystem::exists(file)) << file;
  }
}

TEST(CacheUpdate, TakesAnotherNameForAFileThatIsLocked) {
  for (const int mostLocked : {3, 1000}) {
    test::WatchedApplication app;
    std::set<std::string, std::less<>> names;
    int locked = 0;
    const StringsUpdate update = app.update("fr", {{"k", "v"}}, [&](auto operation, auto path) {
      if (operation != "createFile" || locked == mostLocked) {
        return test::Fault::none();
      }
      ++locked;
      EXPECT_TRUE(names.emplace(path).second) << "tried again: " << path;
      return test::Fault::fail(locked % 2 == 0 ? EAGAIN : EEXIST);
    });
    EXPECT_EQ(update.result == StringsUpdate::Result::written, mostLocked == 3) << update.reason;
  }
}

TEST(CacheUpdate, FailsWithoutACachesFolder) {
  test::WatchedApplication app;
  OVStringCache cache;
  app.setHook([](auto /*name*/, auto /*path*/) { return test::Fault::fail(EACCES); });
  StringsUpdate update{};
  const auto report = [&](const StringsUpdate& last) { update = last; };
  cache.updateStrings(payloadOf({{"fr", {{"k", "v"}}}}), "main", "app", report);
  EXPECT_EQ(update.result, StringsUpdate::Result::failed);
  EXPECT_EQ(update.reason, "there is no caches directory");
  EXPECT_EQ(app.log.back(), "error saving strings file (null)");
  EXPECT_TRUE(cache.cachedLanguages().empty());
}

TEST(CacheUpdate, ForgetsTheCatalogueAlsoWhenAReportThrows) {
  TestApplication app;
  OVStringCache cache;
  EXPECT_TRUE(cache.cachedLanguages().empty());
  const auto strings = payloadOf({{"fr", {{"k", "v"}}}, {"de", {{"k", "v"}}}});
  EXPECT_THROW(cache.updateStrings(strings, "main", "app",
                                   [](const StringsUpdate& /*update*/) { throw std::exception(); }),
               std::exception);
  EXPECT_EQ(cache.cachedLanguageCodes(), StringList({"fr"})) << "not reached: de";
}

// A record that is listed after an update is that of the new file; look-ups wait for a change.
TEST(CacheUpdate, ShowsAtTheNextChangeOfLanguage) {
  const std::string version(OVOrvantaLanguageVersionKey);
  TestApplication app({{"en", {{"k", "shipped"}}}}, {"fr"});
  app.download("en", {{"e", "old english"}});
  app.download("fr", {{"k", "old"}, {"only old", "x"}});
  Localizer localizer;
  OVStringCache& cache = localizer.stringCache();
  const auto texts = [&](const StringList& locales) {
    localizer.changeOrvantaLanguageToPreferredLocales(locales);
    return componentsJoinedBy(
        ' ', {localizer.localizedStringForKey("k"), localizer.localizedStringForKey("e"),
              localizer.localizedStringForKey("only old")});
  };
  EXPECT_EQ(texts({"fr"}), "old old english x");
  const String kept = localizer.localizedStringForKey("k");
  cache.updateStrings(payloadOf({{"fr", {{"k", "new"}, {version, "2"}}},
                                 {"en", {{"e", "new english"}}},
                                 {"sv", {{"k", "nytt"}}}}),
                      "main", "app");
  const OVLocaleDictionary languages = cache.availableLanguages();
  EXPECT_EQ((*languages.find("fr"))->version(), "2");
  EXPECT_EQ(localizer.localizedStringForKey("k"), "old") << "until the language changes";
  EXPECT_EQ(localizer.localizedStringForKey("e"), "old english");
  EXPECT_EQ(texts({"fr"}), "new new english only old");
  EXPECT_EQ(kept, "old") << "a handle outlives its table";
  EXPECT_EQ(texts({"sv"}), "nytt new english only old");
  cache.clearCache();
  EXPECT_EQ(texts({"sv", "en"}), "shipped e only old") << "what was cleared is gone";
}

TEST(CacheUpdate, UsesTheFolderThatIsSet) {
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
