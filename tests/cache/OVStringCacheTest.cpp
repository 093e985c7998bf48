#include <cerrno>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>

#include "../support/WatchedApplication.h"

namespace orvanta {
namespace {

using test::TestApplication;
using ::testing::UnorderedElementsAre;

std::vector<std::string> keysOf(const OVLocaleDictionary& languages) {
  std::vector<std::string> keys;
  for (const auto& [key, locale] : languages) {
    keys.push_back(key.str());
  }
  return keys;
}

TEST(LanguageCatalogue, MergesShippedAndDownloadedLanguages) {
  TestApplication app({{"en", {}}, {"fr", {{"a", "shipped"}}}, {"pt-BR", {}}});
  std::filesystem::create_directories(app.bundle() / "bare.lproj");
  OVStringCache cache;
  EXPECT_THAT(keysOf(cache.mainBundleLocales()), UnorderedElementsAre("en", "fr", "pt-BR", "bare"))
      << "a shipped folder needs no table";
  EXPECT_TRUE(cache.cachedLanguageCodes().empty());

  app.download("fr", {{"a", "downloaded"}});
  app.download("pt-BR", {{"CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageAppleIdKey", "pt"}});
  app.download("deep/inside/it", {});
  app.download(".hidden/sv", {});
  test::writeFile(app.cacheFolder() / "da.lproj/Other.strings", "");
  test::writeFile(app.cacheFolder() / "file.lproj", "");
  std::filesystem::create_directories(app.cacheFolder() / "folder.lproj/Localizable.strings");
  std::filesystem::create_directory(app.cacheFolder() / "fifo.lproj");
  ASSERT_EQ(::mkfifo((app.cacheFolder() / "fifo.lproj/Localizable.strings").c_str(), 0600), 0);
  std::filesystem::create_directory_symlink(app.bundle() / "en.lproj",
                                            app.cacheFolder() / "link.lproj");
  EXPECT_TRUE(cache.cachedLanguages().empty()) << "kept until a reset";
  cache.refreshCache();
  EXPECT_THAT(keysOf(cache.cachedLanguages()), UnorderedElementsAre("fr", "pt", "it"));
  EXPECT_THAT(keysOf(cache.availableLanguages()),
              UnorderedElementsAre("en", "fr", "pt-BR", "bare", "pt", "it"));
  const StringList codes = cache.availableLanguageCodes();
  EXPECT_EQ(std::count(codes.begin(), codes.end(), String("pt-BR")), 2)
      << "one code, two keys: shipped, and downloaded under another name";
  EXPECT_EQ(cache.bundleForLanguage("fr")->localizedStringForKey("a"), "downloaded");
}

TEST(LanguageCatalogue, IsMemoizedAndCanBeSet) {
  TestApplication app(test::Languages{{"en", {}}});
  OVStringCache cache;
  const OVLocaleDictionary first = cache.availableLanguages();
  EXPECT_TRUE(first.isSameObject(cache.availableLanguages()));
  cache.setAvailableLanguages(OVLocaleDictionary(OVLocaleDictionary::Map()));
  EXPECT_TRUE(cache.availableLanguages().empty());
  cache.setAvailableLanguages({{"en", nullptr}});
  EXPECT_EQ(cache.bundleForLanguage("en-GB"), nullptr) << "a key without a record";
  EXPECT_EQ(cache.indexOfFirstAvailableCachedLanguage({"en"}), OVLocaleNotAvailable);
  EXPECT_TRUE(cache.localizedStringForKey("k", "en").isAbsent());
  EXPECT_TRUE(cache.availableLanguageCodes().empty());
  cache.setAvailableLanguages({});
  EXPECT_THAT(keysOf(cache.availableLanguages()), UnorderedElementsAre("en"));
  cache.setAvailableLanguageCodes({"never", "read"});
  EXPECT_EQ(cache.availableLanguageCodes(), StringList({"en"}));
}

TEST(LanguageCatalogue, StaysWhenTheDiskCannotBeReadForAWhile) {
  const struct {
    const char* operation;             // Fails.
    std::vector<std::string> atFirst;  // What is found when nothing was listed before.
    int code;
    bool isTriedAgain;
  } rows[] = {{"enumerateDirectoryAtURL", {"en"}, EMFILE, true},
              {"enumerateDirectoryAtURL", {"en"}, ENOMEM, true},
              {"enumerateDirectoryAtURL", {"en"}, EACCES, false},
              {"contentsOfDirectoryAtURL", {"fr"}, ENFILE, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.operation << ' ' << row.code);
    test::WatchedApplication app(test::Languages{{"en", {}}});
    app.download("fr", {});
    const auto failing = [&](std::string_view operation, std::string_view /*path*/) {
      return operation == row.operation ? test::Fault::fail(row.code) : test::Fault::none();
    };
    const auto both = UnorderedElementsAre("en", "fr");
    OVStringCache cache;
    app.setHook(failing);
    EXPECT_EQ(keysOf(cache.availableLanguages()), row.atFirst);
    app.setHook({});
    EXPECT_EQ(keysOf(cache.availableLanguages()).size(), row.isTriedAgain ? 2U : 1U);

    cache.refreshCache();
    EXPECT_THAT(keysOf(cache.availableLanguages()), both);
    app.download("de", {});
    cache.refreshCache();
    app.setHook(failing);
    EXPECT_THAT(keysOf(cache.availableLanguages()), both) << "the catalogue before";
    EXPECT_NE(cache.bundleForLanguage("fr-CA"), nullptr);
    app.setHook({});
    EXPECT_EQ(cache.availableLanguages().size(), row.isTriedAgain ? 3U : 2U);
    cache.clearCache();
    app.setHook(failing);
    EXPECT_TRUE(cache.cachedLanguages().empty()) << "what was cleared does not return";
  }
}

TEST(LanguageCatalogue, FindsTheFirstAvailableLanguage) {
  const std::tuple<std::vector<std::string>, StringList, int> rows[] = {
      {{"en", "de"}, {"xx", " EN\n", "de"}, 1},
      {{"pt-BR"}, {"pt-BR"}, 1000},
      {{"pt"}, {"pt-BR"}, 0},
      {{"en"}, StringList::emptyList(), 1000},
      {{"en"}, {}, 1000},
      {{"en"}, {"\u0130x", "en-GB"}, 1},
  };
  for (const auto& [known, languages, position] : rows) {
    TestApplication app;
    for (const std::string& language : known) {
      app.ship(language, {});
    }
    EXPECT_EQ(OVStringCache().indexOfFirstAvailableCachedLanguage(languages), position)
        << languages;
  }
}

TEST(LanguageCatalogue, LooksUpExactlyOrCleaned) {
  TestApplication app({{"en", {{"hello", "hi"}}}});
  OVStringCache cache;
  EXPECT_NE(cache.bundleForLanguage("en"), nullptr);
  EXPECT_EQ(cache.bundleForLanguage("en-GB"), cache.bundleForLanguage("en"));
  EXPECT_EQ(cache.bundleForLanguage(" en"), nullptr);
  EXPECT_EQ(cache.bundleForLanguage({}), nullptr);
  EXPECT_EQ(cache.localizedStringForKey("hello", "EN "), "hi");
  EXPECT_EQ(cache.localizedStringForKey("nowhere", "en"), "nowhere");
  EXPECT_TRUE(cache.localizedStringForKey("hello", "en-GB").isAbsent());
  EXPECT_EQ(OVStringCacheUtilities::cleanedString("\tEN-gb\n"), "en-gb");
}

TEST(CacheStorage, IsClearedWithoutFollowingLinks) {
  TestApplication app(test::Languages{{"en", {}}});
  app.download("fr", {});
  test::writeFile(app.cacheFolder() / ".hidden", "x");
  test::writeFile(app.cacheFolder() / "odd name?", "x");
  std::filesystem::create_directory_symlink(app.bundle(), app.cacheFolder() / "link");
  OVStringCache cache;
  EXPECT_EQ(cache.cacheDirectoryURL(), URL::fileURLWithPath(app.cacheFolder().string(), true));
  EXPECT_EQ(OVStringCacheUtilities::cacheDirectoryURL(), cache.cacheDirectoryURL());
  EXPECT_THAT(keysOf(cache.availableLanguages()), UnorderedElementsAre("en", "fr"));
  cache.clearCache();
  EXPECT_TRUE(std::filesystem::is_empty(app.cacheFolder()));
  EXPECT_TRUE(std::filesystem::exists(app.bundle() / "en.lproj"));
  EXPECT_THAT(keysOf(cache.availableLanguages()), UnorderedElementsAre("en"));
  std::filesystem::remove_all(app.caches());
  cache.clearCache();
  EXPECT_TRUE(std::filesystem::is_directory(app.cacheFolder()));
  EXPECT_TRUE(app.log.empty());
}

TEST(CacheStorage, MakesFoldersWithTheirParents) {
  TestApplication app;
  for (const char* path : {"a/b c/\u00E9", "x/./y/.", "not there/../z"}) {
    const auto folder = app.caches() / path;
    for (const char* when : {"new", "there already"}) {
      OVStringCacheUtilities::createDirectoryIfNeededForFile(
          URL::fileURLWithPath((folder / "file").string(), false));
      EXPECT_TRUE(std::filesystem::is_directory(folder)) << path << ' ' << when;
    }
  }
}

TEST(CacheStorage, LogsWhatCannotBeDeleted) {
  test::WatchedApplication app;
  app.download("fr", {});
  app.download("de", {});
  app.setHook([](std::string_view operation, std::string_view path) {
    const bool fails = operation == "removeItemAtURL" && path.ends_with("fr.lproj/");
    return fails ? test::Fault::fail(EBUSY) : test::Fault::none();
  });
  OVStringCache cache;
  cache.clearCache();
  EXPECT_EQ(app.log, std::vector<std::string>({"Error 16 deleting file:injected"}));
  EXPECT_THAT(keysOf(cache.cachedLanguages()), UnorderedElementsAre("fr"));
}

TEST(CacheStorage, FormsTheURLOfATable) {
  const std::tuple<const char*, String, const char*> rows[] = {
      // A null URL: absent.
      {"file:///c", "fr", "file:///c/fr.lproj/Localizable.strings"},
      {"file:///c//", "pt-BR", "file:///c//pt-BR.lproj/Localizable.strings"},
      {"file:///c/", "../x", "file:///c/../x.lproj/Localizable.strings"},
      {"file:///c/", "%2e%2e/x", "file:///c/%2e%2e/x.lproj/Localizable.strings"},
      {"file:///c/", "a b", nullptr},
      {"file:///c/", "\u00E9", nullptr},
      {"file:///c/", "100%", nullptr},
      {"file:///c/", {}, nullptr},
  };
  for (const auto& [folder, language, expected] : rows) {
    const URL url =
        OVStringCacheUtilities::stringsFileURLForLanguage(URL::URLWithString(folder), language);
    EXPECT_EQ(url.absoluteString(), expected) << language;
  }
  const std::pair<const char*, const char*> parents[] = {
      {"file:///c/a%20b/x.strings", "/c/a b"}, {"file://localhost/x", "/"}, {"file:/x", "/"}};
  for (const auto& [file, path] : parents) {
    EXPECT_EQ(OVStringCacheUtilities::directoryFromFileURL(URL::URLWithString(file)).path(), path)
        << file;
  }
}

}  // namespace
}  // namespace orvanta
