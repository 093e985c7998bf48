#include <array>
#include <filesystem>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/locale/OVLocale.h>

#include "../support/TestApplication.h"

namespace orvanta {
namespace {

const std::string kAppleId(OVOrvantaLanguageAppleIDKey);
const std::string kEquivalents(OVOrvantaLanguageEquivalentsKey);
const std::string kVersion(OVOrvantaLanguageVersionKey);

std::shared_ptr<OVLocale> localeOf(const std::string& name, const test::Strings& strings) {
  static test::TestApplication app;
  const auto folder = app.bundle() / (name + ".lproj");
  test::writeTable(folder, strings);
  return OVLocale::initWithBundle(
      platform::Platform::current().bundles->bundleWithPath(folder.string()));
}

TEST(OVLocale, TakesItsNamesFromTheFolderWhereTheTableSaysNothing) {
  const auto locale = localeOf("zh-Hant", {{"hello", "x"}});
  ASSERT_NE(locale, nullptr);
  EXPECT_EQ(locale->orvantaLocaleName(), "zh-Hant");
  EXPECT_TRUE(locale->appleLocaleName().isSameObject(locale->orvantaLocaleName()));
  EXPECT_EQ(locale->version(), kVersion.c_str()) << "a missing version is the key itself";
  EXPECT_TRUE(locale->fallbackLocales().isAbsent());
  EXPECT_FALSE(locale->availableForDownload());
  EXPECT_TRUE(locale->bundle()->bundlePath().view().ends_with("/zh-Hant.lproj"));
  EXPECT_EQ(OVLocale::initWithBundle(nullptr), nullptr);
}

TEST(OVLocale, SplitsEquivalentsAsTheyAreWritten) {
  const std::pair<std::string, StringList> rows[] = {{"zh-Hans, zh-CN", {"zh-Hans", " zh-CN"}},
                                                     {"a,,b", {"a", "", "b"}},
                                                     {"", {""}},
                                                     {kEquivalents, {}}};
  int number = 0;
  for (const auto& [entry, locales] : rows) {
    const auto locale = localeOf("x" + std::to_string(number++),
                                 {{kEquivalents, entry}, {kAppleId, "own"}, {kVersion, "1.2"}});
    EXPECT_EQ(locale->fallbackLocales(), locales) << entry;
    EXPECT_EQ(locale->appleLocaleName(), "own");
    EXPECT_EQ(locale->version(), "1.2");
  }
}

std::shared_ptr<OVLocale> shippedFrench() {
  const OVLocaleDictionary shipped = OVStringCache().mainBundleLocales();
  return *shipped.find("fr");
}

// What a shipped record says is what the file says when the record is first asked, and stays.
TEST(OVLocale, ReadsAShippedTableWhenItIsFirstAsked) {
  const test::TestApplication app;
  const auto folder = app.bundle() / "fr.lproj";
  const auto write = [&](const std::string& version) {
    test::writeTable(folder, {{kVersion, version}, {kAppleId, "fr-" + version}});
  };
  write("1");
  const auto asked = shippedFrench();
  const auto unasked = shippedFrench();
  const auto renamed = shippedFrench();
  EXPECT_EQ(asked->version(), "1");
  write("2");
  EXPECT_EQ(asked->appleLocaleName(), "fr-1");
  EXPECT_EQ(unasked->appleLocaleName(), "fr-2");
  renamed->setAppleLocaleName("own");
  EXPECT_EQ(renamed->appleLocaleName(), "own");
  EXPECT_EQ(renamed->version(), "2");
  const auto gone = shippedFrench();
  std::filesystem::remove_all(folder);
  gone->setOrvantaLocaleName("other");
  EXPECT_EQ(gone->appleLocaleName(), "fr");
  EXPECT_EQ(gone->version(), kVersion);
}

TEST(OVLocaleThreads, ReadOneRecordOnce) {
  const test::TestApplication app;
  test::writeTable(app.bundle() / "fr.lproj", {{kVersion, "1"}});
  for (int round = 0; round < 20; ++round) {
    const auto record = shippedFrench();
    std::array<const String*, 4> versions = {};
    std::vector<std::thread> readers;
    for (const String*& version : versions) {
      readers.emplace_back([&version, &record] { version = &record->version(); });
    }
    for (std::thread& reader : readers) {
      reader.join();
    }
    for (const String* version : versions) {
      EXPECT_TRUE(version->isSameObject(record->version()));
      EXPECT_EQ(*version, "1");
    }
  }
}

class Derived : public OVLocale {
 public:
  explicit Derived(String appleName) : OVLocale({}, std::move(appleName), {}, nullptr, {}) {}
};
class FurtherDerived final : public Derived {
 public:
  using Derived::Derived;
};

TEST(OVLocale, EqualsOnlyRecordsOfItsOwnClassAndSubclasses) {
  const String name = "fr";
  const auto plain = OVLocale::initWithOrvantaName({}, name, {}, nullptr, {});
  const auto base = std::make_shared<Derived>(name);
  const auto derived = std::make_shared<FurtherDerived>(name);
  const std::shared_ptr<OVLocale> byDepth[] = {plain, base, derived};
  for (std::size_t self = 0; self < 3; ++self) {
    for (std::size_t other = 0; other < 3; ++other) {
      EXPECT_EQ(byDepth[self]->isEqual(byDepth[other].get()), other >= self)
          << self << " and " << other;
    }
  }
}

TEST(OVLocale, ComparesNamesByIdentityAndHashesItself) {
  const String name = "fr";
  const auto make = [](const String& appleName) {
    return OVLocale::initWithOrvantaName({}, appleName, {}, nullptr, {});
  };
  const auto one = make(name);
  const auto sameObject = make(name);
  const auto sameText = make(String("fr"));
  EXPECT_TRUE(one->isEqual(one.get()));
  EXPECT_TRUE(one->isEqual(sameObject.get()));
  EXPECT_NE(one->hash(), sameObject->hash());
  EXPECT_FALSE(one->isEqual(sameText.get()));
  EXPECT_FALSE(one->isEqual(nullptr));
  EXPECT_TRUE(make({})->isEqual(make({}).get())) << "absent is the same object as absent";
}

}  // namespace
}  // namespace orvanta
