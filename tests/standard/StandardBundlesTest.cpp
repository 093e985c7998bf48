#include <gtest/gtest.h>
#include <tests/support/ForwardingFileManager.h>
#include <tests/support/TestApplication.h>

#include <orvanta/standard/StandardBundles.h>
#include <orvanta/standard/StandardFiles.h>
#include <orvanta/standard/StandardLocaleData.h>

namespace orvanta::standard {
namespace {

class StandardBundles : public testing::Test {
 protected:
  std::shared_ptr<platform::BundleRegistry> registryFor(StringList deviceLanguages = {"fr"}) {
    return makeBundleRegistry(files_, makeLocaleData(std::move(deviceLanguages)), folder(), {});
  }

  std::string folder() const { return scratch_.path(); }
  std::string path(const std::string& relative) const { return folder() + '/' + relative; }
  std::string write(const std::string& relative, std::string_view text) const {
    test::writeFile(path(relative), text);
    return path(relative);
  }
  // A table so old that its stamp is not racy.
  std::string writeOld(const std::string& relative, std::string_view text) const {
    std::string file = write(relative, text);
    std::filesystem::last_write_time(
        file, std::filesystem::last_write_time(file) - std::chrono::hours(1));
    return file;
  }
  [[nodiscard]] int openedSinceLast() { return std::exchange(opened_, 0); }

  std::string_view failing_;  // The operation that fails.

 private:
  test::ScratchFolder scratch_;
  int opened_ = 0;
  std::shared_ptr<platform::FileManager> files_ = std::make_shared<test::ForwardingFileManager>(
      makeFileManager({}), [this](std::string_view operation, std::string_view /*path*/) {
        opened_ += operation == "openFileForReading" ? 1 : 0;
        return operation == failing_ ? test::Fault::fail(5) : test::Fault::none();
      });
};

TEST_F(StandardBundles, GiveOneObjectForEachFolder) {
  write("fr.lproj/Localizable.strings", "");
  const auto registry = registryFor();
  const auto bundle = registry->bundleWithPath(path("fr.lproj"));
  ASSERT_NE(bundle, nullptr);
  EXPECT_EQ(bundle->bundlePath(), String(path("fr.lproj")));
  for (const char* spelling : {"fr.lproj/", "/./fr.lproj//", "fr.lproj/."}) {
    EXPECT_EQ(registry->bundleWithPath(path(spelling)), bundle) << spelling;
  }
  EXPECT_EQ(registry->bundleWithURL(URL::fileURLWithPath(path("fr.lproj"), true)), bundle);
  EXPECT_EQ(registry->bundleWithPath(folder() + "/"), registry->mainBundle());
  std::filesystem::create_directory_symlink(path("fr.lproj"), path("link"));
  EXPECT_NE(registry->bundleWithPath(path("link")), nullptr);
}

TEST_F(StandardBundles, AreAbsentWithoutAFolder) {
  write("fr.lproj/Localizable.strings", "");
  const auto registry = registryFor();
  EXPECT_NE(registry->bundleWithPath(path("fr.lproj")), nullptr);
  std::filesystem::remove_all(path("fr.lproj"));
  for (const String& gone : {String(path("fr.lproj")), String(path("fr.lproj/Localizable.strings")),
                             String(), String(""), String("relative")}) {
    EXPECT_EQ(registry->bundleWithPath(gone), nullptr) << gone;
  }
}

TEST_F(StandardBundles, ReadChangedTablesOnceTheyAreRefreshed) {
  const std::string file = write("fr.lproj/Localizable.strings", R"("k" = "one";)");
  write("fr.lproj/Other.strings", R"("k" = "other";)");
  const auto registry = registryFor();
  const auto bundle = registry->bundleWithPath(path("fr.lproj"));
  const String one = bundle->localizedStringForKey("k");
  EXPECT_EQ(one, "one");
  EXPECT_EQ(bundle->localizedStringForKey("k", {}, "Other"), "other");
  EXPECT_TRUE(bundle->localizedStringForKey("k", {}, "Localizable").isSameObject(one));

  const std::vector<HashedKey> keys = {HashedKey("k")};
  const auto openedAgain = [&] {
    EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle);
    return bundle->textsForKeys(keys).front();
  };
  const auto again = [&] {
    static_cast<void>(openedAgain());
    registry->refreshTables();
    return bundle->localizedStringForKey("k");
  };
  EXPECT_TRUE(again().isSameObject(one)) << "nothing had changed";

  // Overwritten in place with the same length right away: its stamp may be the same.
  write("fr.lproj/Localizable.strings", R"("k" = "two";)");
  write("fr.lproj/Other.strings", R"("k" = "owner";)");
  registry->refreshTables();
  EXPECT_EQ(bundle->localizedStringForKey("k"), "one") << "no bundle was opened";
  EXPECT_EQ(openedAgain(), "two") << "a record is built from the file";
  EXPECT_EQ(bundle->localizedStringForKey("k"), "one") << "look-ups wait for the refresh";
  write("fr.lproj/Localizable.strings", R"("k" = "six";)");
  EXPECT_EQ(openedAgain(), "six");
  EXPECT_EQ(bundle->localizedStringForKey("k", {}, "Other"), "other");
  EXPECT_EQ(again(), "six");
  EXPECT_EQ(bundle->localizedStringForKey("k", {}, "Other"), "owner");
  std::filesystem::remove(file);
  EXPECT_EQ(again(), "k");
  write("fr.lproj/Localizable.strings", R"("k" = "back";)");
  EXPECT_EQ(again(), "back");
  EXPECT_EQ(one, "one") << "what was handed out stays";
}

// After a refresh, bundles whose folders are gone give keys and hold no table, whether or not their
// tables were read before.
TEST_F(StandardBundles, DropTablesOfFoldersThatHaveGone) {
  const std::vector<HashedKey> keys = {HashedKey("CONFIG-Language-A"),
                                       HashedKey("CONFIG-Language-B")};
  const std::pair<const char*, std::function<void(platform::Bundle&)>> rows[] = {
      {"unread", [](platform::Bundle&) {}},
      {"probed", [&](platform::Bundle& bundle) { static_cast<void>(bundle.textsForKeys(keys)); }},
      {"read", [](platform::Bundle& bundle) { EXPECT_EQ(bundle.localizedStringForKey("k"), "v"); }},
  };
  write("en.lproj/Localizable.strings", R"("k" = "english";)");
  for (const auto& [name, ask] : rows) {
    const auto registry = registryFor();
    write("fr.lproj/Localizable.strings", R"("k" = "v";)");
    const auto bundle = registry->bundleWithPath(path("fr.lproj"));
    ask(*bundle);
    registry->refreshTables();
    std::filesystem::remove_all(path("fr.lproj"));
    EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), nullptr) << name;
    ask(*bundle);
    registry->refreshTables();
    EXPECT_EQ(bundle->loadedDefaultTable(), nullptr) << name;
    EXPECT_EQ(bundle->localizedStringForKey("k"), "k") << name;
    write("fr.lproj/Localizable.strings", R"("k" = "back";)");
    EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle) << name;
    registry->refreshTables();
    EXPECT_EQ(bundle->localizedStringForKey("k"), "back") << name;
  }
}

TEST_F(StandardBundles, ListLanguageFolders) {
  for (const char* folder :
       {"fr.lproj", "zh-Hant.lproj", "en.lproj", ".lproj", ".de.lproj", "es"}) {
    std::filesystem::create_directory(path(folder));
  }
  write("it.lproj", "a file");
  std::filesystem::create_directory_symlink(path("fr.lproj"), path("ca.lproj"));
  const auto main = registryFor({"zh-TW", "fr-CA"})->mainBundle();
  EXPECT_EQ(main->localizations(), (StringList{"ca", "en", "fr", "zh-Hant"}));
  EXPECT_EQ(main->preferredLocalizations(), (StringList{"zh-Hant", "fr"}));
  std::filesystem::create_directory(path("fr-CA.lproj"));
  EXPECT_EQ(main->preferredLocalizations(), (StringList{"zh-Hant", "fr-CA"}));
  failing_ = "itemKindAtPath";
  EXPECT_EQ(main->localizations(), StringList::emptyList()) << "folders that may not be entered";
}

TEST_F(StandardBundles, MainBundleFallsBackOnItsPreferredLocalization) {
  write("fr.lproj/Localizable.strings", R"("k" = "fr";)");
  write("en.lproj/Localizable.strings", R"("k" = "en";)");
  write("fr.lproj/image.png", "");
  const auto registry = registryFor();
  const auto main = registry->mainBundle();
  EXPECT_EQ(main->localizedStringForKey("k"), "fr");
  EXPECT_EQ(main->pathForResource("image", "png"), String(path("fr.lproj/image.png")));

  write("Localizable.strings", R"("k" = "direct";)");
  EXPECT_EQ(registry->bundleWithPath(folder()), main);
  registry->refreshTables();
  EXPECT_EQ(main->localizedStringForKey("k"), "direct");
}

TEST_F(StandardBundles, MainBundleIsThereWithoutAFolder) {
  const auto registry =
      makeBundleRegistry(makeFileManager({}), makeLocaleData({}), path("none"), {});
  const auto main = registry->mainBundle();
  ASSERT_NE(main, nullptr);
  EXPECT_EQ(main->localizations(), StringList::emptyList());
  EXPECT_EQ(main->localizedStringForKey("k"), "k");
}

TEST_F(StandardBundles, NeedNoTableToKnowThatSharedPrefixesAreNotThere) {
  const std::vector<HashedKey> keys = {HashedKey("CONFIG-Language-A"),
                                       HashedKey("CONFIG-Language-B")};
  const std::vector<String> none(2);
  const std::string file = writeOld("fr.lproj/Localizable.strings", R"("k" = "one";)");
  const auto registry = registryFor();
  const auto open = [&] { return registry->bundleWithPath(path("fr.lproj")); };

  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(openedSinceLast(), 1) << "the file had not changed";
  EXPECT_EQ(open()->localizedStringForKey("k"), "one");
  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(openedSinceLast(), 1) << "the table answers once it is read";

  write("fr.lproj/Localizable.strings", R"("CONFIG-Language-\U0042" = "b";)");
  EXPECT_EQ(open()->textsForKeys(keys), (std::vector<String>{{}, "b"}));
  write("fr.lproj/Localizable.strings", R"("CONFIG-Language-A" = "a";)");
  EXPECT_EQ(open()->textsForKeys(keys), (std::vector<String>{"a", {}}));
  std::filesystem::remove(file);
  EXPECT_EQ(open()->textsForKeys(keys), none);
}

TEST_F(StandardBundles, TakeAnUnreadableTableForAnEmptyOne) {
  writeOld("fr.lproj/Localizable.strings", R"("k" = "one";)");
  write("de.lproj/Localizable.strings", R"("k" = "eins";)");
  write("it.lproj/Localizable.strings", "\0\1\2 no table");
  const auto registry = registryFor();
  const auto look = [&](const char* folder) {
    const auto bundle = registry->bundleWithPath(path(folder));
    registry->refreshTables();
    return bundle->localizedStringForKey("k");
  };
  failing_ = "read";
  EXPECT_EQ(look("fr.lproj"), "k");
  EXPECT_EQ(look("fr.lproj"), "k");
  failing_ = "openFileForReading";
  EXPECT_EQ(look("de.lproj"), "k");
  failing_ = "none";
  EXPECT_EQ(look("it.lproj"), "k");
  EXPECT_EQ(look("fr.lproj"), "one") << "readable again, though unchanged";

  writeOld("es.lproj/Localizable.strings", R"("CONFIG-Language-A" = "a";)");
  const std::vector<HashedKey> keys = {HashedKey("CONFIG-Language-A"),
                                       HashedKey("CONFIG-Language-B")};
  for (const auto& [failing, text] : {std::pair("read", String()), {"none", "a"}}) {
    failing_ = failing;
    EXPECT_EQ(registry->bundleWithPath(path("es.lproj"))->textsForKeys(keys).front(), text);
  }
}

TEST_F(StandardBundles, FindResourcesBelowThemselvesAlone) {
  for (const char* file : {"outside.txt", "in/a b\u00E9.txt", "in/plain", "in/fr.lproj/deep.txt"}) {
    write(file, "");
  }
  const std::tuple<String, String, const char*> kRows[] = {
      // Name, type; null: not found.
      {"a b\u00E9", "txt", "in/a b\u00E9.txt"},
      {"plain", {}, "in/plain"},
      {"plain", "", "in/plain"},
      {"fr", "lproj", "in/fr.lproj"},
      {"fr.lproj/deep", "txt", "in/fr.lproj/deep.txt"},
      {"fr.lproj/../plain", {}, "in/fr.lproj/../plain"},
      {"../outside", "txt", nullptr},
      {"fr.lproj/../../outside", "txt", nullptr},
      {"..", {}, nullptr},
      {".", {}, nullptr},
      {"fr.lproj/..", {}, nullptr},
      {"", "txt", nullptr},
      {{}, "txt", nullptr},
      {"plain", "txt", nullptr},
  };
  const auto bundle = registryFor()->bundleWithPath(path("in"));
  for (const auto& [name, type, found] : kRows) {
    EXPECT_EQ(bundle->pathForResource(name, type),
              found == nullptr ? String() : String(path(found)))
        << name << " . " << type;
  }
}

}  // namespace
}  // namespace orvanta::standard
