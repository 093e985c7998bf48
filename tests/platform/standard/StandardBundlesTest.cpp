#include <gtest/gtest.h>
#include <orvanta/platform/standard/StandardBundles.h>
#include <orvanta/platform/standard/StandardFiles.h>
#include <orvanta/platform/standard/StandardLocaleData.h>
#include <tests/support/TemporaryFolder.h>

#include <filesystem>

namespace orvanta::platform::standard {
namespace {

using tests::TemporaryFolder;

class StandardBundles : public testing::Test {
 protected:
  std::shared_ptr<BundleRegistry> registryFor(StringList deviceLanguages = {"fr"}) const {
    return makeBundleRegistry(makeFileManager({}), makeLocaleData(std::move(deviceLanguages)),
                              folder_.path());
  }

  TemporaryFolder folder_;
};

TEST_F(StandardBundles, GiveOneObjectForEachFolder) {
  folder_.write("fr.lproj/Localizable.strings", "");
  const auto registry = registryFor();
  const auto bundle = registry->bundleWithPath(folder_.path("fr.lproj"));
  ASSERT_NE(bundle, nullptr);
  EXPECT_EQ(bundle->bundlePath(), folder_.path("fr.lproj").c_str());
  for (const char* spelling : {"fr.lproj/", "/./fr.lproj//", "fr.lproj/."}) {
    EXPECT_EQ(registry->bundleWithPath(folder_.path(spelling)), bundle) << spelling;
  }
  EXPECT_EQ(registry->bundleWithURL(URL::fileURLWithPath(folder_.path("fr.lproj"), true)), bundle);
  EXPECT_EQ(registry->bundleWithPath(folder_.path() + "/"), registry->mainBundle());
  std::filesystem::create_directory_symlink(folder_.path("fr.lproj"), folder_.path("link"));
  EXPECT_NE(registry->bundleWithPath(folder_.path("link")), nullptr);
}

TEST_F(StandardBundles, AreAbsentWithoutAFolder) {
  folder_.write("fr.lproj/Localizable.strings", "");
  const auto registry = registryFor();
  EXPECT_NE(registry->bundleWithPath(folder_.path("fr.lproj")), nullptr);
  std::filesystem::remove_all(folder_.path("fr.lproj"));
  for (const char* path : {"fr.lproj", "fr.lproj/Localizable.strings", "none"}) {
    EXPECT_EQ(registry->bundleWithPath(folder_.path(path)), nullptr) << path;
  }
  EXPECT_EQ(registry->bundleWithPath({}), nullptr);
  EXPECT_EQ(registry->bundleWithPath(""), nullptr);
  EXPECT_EQ(registry->bundleWithPath("relative"), nullptr);
}

TEST_F(StandardBundles, ReadTablesAfreshWhenTheirFilesChanged) {
  const std::string path = folder_.write("fr.lproj/Localizable.strings", "\"k\" = \"one\";");
  folder_.write("fr.lproj/Other.strings", "\"k\" = \"other\";");
  const auto registry = registryFor();
  const auto bundle = registry->bundleWithPath(folder_.path("fr.lproj"));
  const String one = bundle->localizedStringForKey("k");
  EXPECT_EQ(one, "one");
  EXPECT_EQ(bundle->localizedStringForKey("k", {}, "Other"), "other");
  EXPECT_TRUE(bundle->localizedStringForKey("k", {}, "Localizable").isSameObject(one));

  EXPECT_EQ(registry->bundleWithPath(folder_.path("fr.lproj")), bundle);
  EXPECT_TRUE(bundle->localizedStringForKey("k").isSameObject(one)) << "nothing had changed";

  // Of the same length, in place, and at once: only the content tells.
  folder_.write("fr.lproj/Localizable.strings", "\"k\" = \"two\";");
  EXPECT_EQ(bundle->localizedStringForKey("k"), "one") << "not opened again yet";
  EXPECT_EQ(registry->bundleWithPath(folder_.path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "two");

  std::filesystem::remove(path);
  EXPECT_EQ(registry->bundleWithPath(folder_.path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "k");

  folder_.write("fr.lproj/Localizable.strings", "\"k\" = \"back\";");
  EXPECT_EQ(registry->bundleWithPath(folder_.path("fr.lproj")), bundle);
  EXPECT_EQ(bundle->localizedStringForKey("k"), "back");
  EXPECT_EQ(one, "one") << "what was handed out stays";
}

TEST_F(StandardBundles, ListLanguageFolders) {
  for (const char* folder :
       {"fr.lproj", "zh-Hant.lproj", "en.lproj", ".lproj", ".de.lproj", "es"}) {
    std::filesystem::create_directory(folder_.path(folder));
  }
  folder_.write("it.lproj", "a file");
  std::filesystem::create_directory_symlink(folder_.path("fr.lproj"), folder_.path("ca.lproj"));
  const auto main = registryFor({"zh-TW", "fr-CA"})->mainBundle();
  EXPECT_EQ(main->localizations(), (StringList{"ca", "en", "fr", "zh-Hant"}));
  EXPECT_EQ(main->preferredLocalizations(), (StringList{"zh-Hant", "fr"}));
  std::filesystem::create_directory(folder_.path("fr-CA.lproj"));
  EXPECT_EQ(main->preferredLocalizations(), (StringList{"zh-Hant", "fr-CA"}));
}

TEST_F(StandardBundles, MainBundleFallsBackOnItsPreferredLocalization) {
  folder_.write("fr.lproj/Localizable.strings", "\"k\" = \"fr\";");
  folder_.write("en.lproj/Localizable.strings", "\"k\" = \"en\";");
  folder_.write("fr.lproj/image.png", "");
  const auto registry = registryFor();
  const auto main = registry->mainBundle();
  EXPECT_EQ(main->localizedStringForKey("k"), "fr");
  EXPECT_EQ(main->pathForResource("image", "png"), folder_.path("fr.lproj/image.png").c_str());

  folder_.write("Localizable.strings", "\"k\" = \"direct\";");
  EXPECT_EQ(registry->bundleWithPath(folder_.path()), main);
  EXPECT_EQ(main->localizedStringForKey("k"), "direct");
}

TEST_F(StandardBundles, MainBundleIsThereWithoutAFolder) {
  const auto registry =
      makeBundleRegistry(makeFileManager({}), makeLocaleData({}), folder_.path("none"));
  const auto main = registry->mainBundle();
  ASSERT_NE(main, nullptr);
  EXPECT_EQ(main->bundlePath(), folder_.path("none").c_str());
  EXPECT_TRUE(main->localizations().isPresent());
  EXPECT_TRUE(main->localizations().empty());
  EXPECT_EQ(main->localizedStringForKey("k"), "k");
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
  folder_.write("outside.txt", "");
  for (const char* file : {"in/a b\xC3\xA9.txt", "in/plain", "in/fr.lproj/deep.txt"}) {
    folder_.write(file, "");
  }
  const auto bundle = registryFor()->bundleWithPath(folder_.path("in"));
  for (const ResourceRow& row : kResourceRows) {
    const String found = row.found == nullptr ? String() : String(folder_.path("in/") + row.found);
    EXPECT_EQ(bundle->pathForResource(row.name, row.type), found)
        << String(row.name) << " . " << String(row.type);
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
