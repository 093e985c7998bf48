#include <filesystem>

#include <gtest/gtest.h>
#include <tests/support/ForwardingFileManager.h>
#include <tests/support/TestApplication.h>

#include <orvanta/platform/standard/StandardBundles.h>
#include <orvanta/platform/standard/StandardFiles.h>
#include <orvanta/platform/standard/StandardLocaleData.h>

namespace orvanta::platform::standard {
namespace {

class StandardBundles : public testing::Test {
 protected:
  std::shared_ptr<BundleRegistry> registryFor(StringList deviceLanguages = {"fr"}) const {
    return makeBundleRegistry(makeFileManager({}), makeLocaleData(std::move(deviceLanguages)),
                              folder(), {});
  }

  std::string folder() const { return scratch_.path(); }
  std::string path(const std::string& relative) const { return folder() + '/' + relative; }
  std::string write(const std::string& relative, std::string_view text) const {
    test::writeFile(path(relative), text);
    return path(relative);
  }

 private:
  test::ScratchFolder scratch_;
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
  for (const char* gone : {"fr.lproj", "fr.lproj/Localizable.strings", "none"}) {
    EXPECT_EQ(registry->bundleWithPath(path(gone)), nullptr) << gone;
  }
  EXPECT_EQ(registry->bundleWithPath({}), nullptr);
  EXPECT_EQ(registry->bundleWithPath(""), nullptr);
  EXPECT_EQ(registry->bundleWithPath("relative"), nullptr);
}

TEST_F(StandardBundles, ReadTablesAfreshWhenTheirFilesChanged) {
  const std::string file = write("fr.lproj/Localizable.strings", R"("k" = "one";)");
  write("fr.lproj/Other.strings", R"("k" = "other";)");
  const auto registry = registryFor();
  const auto bundle = registry->bundleWithPath(path("fr.lproj"));
  const String one = bundle->localizedStringForKey("k");
  EXPECT_EQ(one, "one");
  EXPECT_EQ(bundle->localizedStringForKey("k", {}, "Other"), "other");
  EXPECT_TRUE(bundle->localizedStringForKey("k", {}, "Localizable").isSameObject(one));

  EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle);
  EXPECT_TRUE(bundle->localizedStringForKey("k").isSameObject(one)) << "nothing had changed";

  // Of the same length, in place, and at once: only the content tells.
  write("fr.lproj/Localizable.strings", R"("k" = "two";)");
  EXPECT_EQ(bundle->localizedStringForKey("k"), "one") << "not opened again yet";
  EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "two");

  std::filesystem::remove(file);
  EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "k");

  write("fr.lproj/Localizable.strings", R"("k" = "back";)");
  EXPECT_EQ(registry->bundleWithPath(path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "back");
  EXPECT_EQ(one, "one") << "what was handed out stays";
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
  EXPECT_EQ(main->localizedStringForKey("k"), "direct");
}

TEST_F(StandardBundles, MainBundleIsThereWithoutAFolder) {
  const auto registry =
      makeBundleRegistry(makeFileManager({}), makeLocaleData({}), path("none"), {});
  const auto main = registry->mainBundle();
  ASSERT_NE(main, nullptr);
  EXPECT_EQ(main->bundlePath(), String(path("none")));
  EXPECT_TRUE(main->localizations().isPresent());
  EXPECT_TRUE(main->localizations().empty());
  EXPECT_EQ(main->localizedStringForKey("k"), "k");
}

// Counts the times that a table's file was opened.
class CountedOpening {
 public:
  [[nodiscard]] std::shared_ptr<FileManager> files() {
    return std::make_shared<test::ForwardingFileManager>(
        makeFileManager({}), [this](std::string_view operation, std::string_view /*path*/) {
          count_ += operation == "openFileForReading" ? 1 : 0;
          return operation == failing_ ? test::Fault::fail(5) : test::Fault::none();
        });
  }
  [[nodiscard]] int countSinceLast() { return std::exchange(count_, 0); }
  void fail(std::string_view operation) { failing_ = operation; }

 private:
  int count_ = 0;
  std::string_view failing_;
};

TEST_F(StandardBundles, NeedNoTableToKnowThatSharedPrefixesAreNotThere) {
  const std::vector<HashedKey> keys = {HashedKey("CONFIG-Language-A"),
                                       HashedKey("CONFIG-Language-B")};
  const std::vector<String> none(2);
  const std::string file = write("fr.lproj/Localizable.strings", R"("k" = "one";)");
  const auto longAgo = std::filesystem::last_write_time(file) - std::chrono::hours(1);
  std::filesystem::last_write_time(file, longAgo);
  CountedOpening opening;
  const auto registry = makeBundleRegistry(opening.files(), makeLocaleData({}), folder(), {});
  const auto open = [&] { return registry->bundleWithPath(path("fr.lproj")); };

  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(opening.countSinceLast(), 1) << "the file had not changed";
  EXPECT_EQ(open()->localizedStringForKey("k"), "one");
  EXPECT_EQ(open()->textsForKeys(keys), none);
  EXPECT_EQ(opening.countSinceLast(), 1) << "the table answers once it is read";

  write("fr.lproj/Localizable.strings", R"("CONFIG-Language-\U0042" = "b";)");
  EXPECT_EQ(open()->textsForKeys(keys), (std::vector<String>{{}, "b"}));
  write("fr.lproj/Localizable.strings", R"("CONFIG-Language-A" = "a";)");
  EXPECT_EQ(open()->textsForKeys(keys), (std::vector<String>{"a", {}}));
  std::filesystem::remove(file);
  EXPECT_EQ(open()->textsForKeys(keys), none);
}

TEST_F(StandardBundles, TakeAnUnreadableTableForAnEmptyOne) {
  const std::string file = write("fr.lproj/Localizable.strings", R"("k" = "one";)");
  const auto longAgo = std::filesystem::last_write_time(file) - std::chrono::hours(1);
  std::filesystem::last_write_time(file, longAgo);
  write("de.lproj/Localizable.strings", R"("k" = "eins";)");
  write("it.lproj/Localizable.strings", "\0\1\2 no table");
  CountedOpening opening;
  const auto registry = makeBundleRegistry(opening.files(), makeLocaleData({}), folder(), {});
  const auto look = [&](const char* folder) {
    return registry->bundleWithPath(path(folder))->localizedStringForKey("k");
  };
  opening.fail("read");
  EXPECT_EQ(look("fr.lproj"), "k");
  EXPECT_EQ(look("fr.lproj"), "k");
  opening.fail("openFileForReading");
  EXPECT_EQ(look("de.lproj"), "k");
  opening.fail("none");
  EXPECT_EQ(look("it.lproj"), "k");
  EXPECT_EQ(look("fr.lproj"), "one") << "readable again, though unchanged";
}

struct ResourceRow {
  const char* name;
  const char* type;
  const char* found;  // Relative to the bundle; null for absent.
};

const ResourceRow kResourceRows[] = {
    {"a b\xC3\xA9", "txt", "a b\xC3\xA9.txt"},
    {"plain", nullptr, "plain"},
    {"plain", "", "plain"},
    {"fr", "lproj", "fr.lproj"},
    {"fr.lproj/deep", "txt", "fr.lproj/deep.txt"},
    {"fr.lproj/../plain", nullptr, "fr.lproj/../plain"},
    {"../outside", "txt", nullptr},
    {"fr.lproj/../../outside", "txt", nullptr},
    {"..", nullptr, nullptr},
    {".", nullptr, nullptr},
    {"fr.lproj/..", nullptr, nullptr},
    {"", "txt", nullptr},
    {nullptr, "txt", nullptr},
    {"plain", "txt", nullptr},
};

TEST_F(StandardBundles, FindResourcesBelowThemselvesAlone) {
  write("outside.txt", "");
  for (const char* file : {"in/a b\xC3\xA9.txt", "in/plain", "in/fr.lproj/deep.txt"}) {
    write(file, "");
  }
  const auto bundle = registryFor()->bundleWithPath(path("in"));
  for (const ResourceRow& row : kResourceRows) {
    const String found =
        row.found == nullptr ? String() : String(path(std::string("in/") + row.found));
    EXPECT_EQ(bundle->pathForResource(row.name, row.type), found)
        << String(row.name) << " . " << String(row.type);
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
