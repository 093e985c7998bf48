#include <functional>
#include <thread>

#include <gtest/gtest.h>

#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/SystemInfo.h>

#include "../support/TestApplication.h"

namespace orvanta {
namespace {

// The preferred list and the raw list of each notification.
using Heard = std::vector<std::pair<StringList, StringList>>;

// An application with a localizer, which records the notifications that it posts.
struct SpeakingApplication : test::TestApplication {
  explicit SpeakingApplication(const test::Languages& shipped,
                               std::vector<std::string> deviceLanguages = {"en"})
      : TestApplication(shipped, std::move(deviceLanguages)) {
    platform::Platform::current().notifications->addObserver(
        this, String(OVPreferredLocaleDidChangeNotification), nullptr,
        [this](const platform::Notification& notification) {
          EXPECT_EQ(notification.object, nullptr);
          EXPECT_EQ(notification.userInfo.size(), 2U);
          heard.emplace_back(*notification.userInfo.find(OVPreferredLocaleKey),
                             *notification.userInfo.find(OVRawLocaleKey));
        });
  }

  // The notifications since the last call. None may be delivered before the main queue runs.
  Heard hear() {
    EXPECT_TRUE(heard.empty());
    loop->runPending();
    return std::exchange(heard, {});
  }

  Heard heard;
  Localizer localizer;
};

TEST(Localizer, StartsInWhatTheDeviceAsksForAndSaysSoLater) {
  SpeakingApplication app({{"en", {}}, {"fr", {{"hello", "bonjour"}}}, {"de", {}}},
                          {"fr-CA", "de"});
  EXPECT_EQ(app.localizer.currentLocales(), StringList({"fr", "de"}));
  EXPECT_EQ(app.localizer.localizedStringForKey("hello"), "bonjour");
  EXPECT_EQ(app.localizer.devicePreferredLocales(), StringList({"fr-CA", "de"}));
  EXPECT_EQ(app.hear(), Heard({{{"fr", "de"}, {"fr", "de"}}}));
}

TEST(Localizer, AdoptsARegionalRequestEndToEnd) {
  SpeakingApplication app({{"en", {}}, {"fr", {{"hello", "bonjour"}}}});
  app.hear();
  app.localizer.updatePreferredLocales({"fr", "en"}, "CA");
  const StringList expanded = {"fr-CA", "fr", "en-CA", "en"};
  EXPECT_EQ(app.localizer.originalLocales(), expanded);
  EXPECT_EQ(app.localizer.preferredLocales(), expanded);
  EXPECT_EQ(app.localizer.currentLanguageBundle(), app.localizer.languageBundleForLocale("fr"));
  EXPECT_EQ(app.localizer.localizedStringForKey("hello"), "bonjour");
  EXPECT_EQ(app.hear(), Heard({{expanded, expanded}}));
}

TEST(Localizer, PostsOnceForEachChange) {
  SpeakingApplication app({{"en", {}}, {"fr", {}}, {"ar", {}}}, {"fr"});
  Localizer& localizer = app.localizer;
  app.hear();
  const std::tuple<const char*, StringList, StringList, StringList> rows[] = {
      {"an absent list is English", {}, {"en"}, {"en"}},
      {"an empty one, too", StringList::emptyList(), {"en"}, StringList::emptyList()},
      {"nothing available: the device's choice", {"xx"}, {"fr"}, {"fr"}},
      {"what is not available is dropped", {"xx", "ar-EG"}, {"ar-EG"}, {"xx", "ar-EG"}},
      {"the same language again", {"ar-EG"}, {"ar-EG"}, {"ar-EG"}},
  };
  for (const auto& [what, requested, preferred, raw] : rows) {
    localizer.changeOrvantaLanguageToPreferredLocales(requested);
    EXPECT_EQ(localizer.preferredLocales(), preferred) << what;
    EXPECT_EQ(app.hear(), Heard({{preferred, raw}})) << what;
  }
  EXPECT_TRUE(localizer.rightToLeftOrientation());
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(app.hear(), Heard({{{"fr"}, {"fr"}}, {{"en"}, {"en"}}}))
      << "each posting carries its own change";

  const StringList own = {"xx", "en"};
  localizer.setPreferredLocales(own);
  localizer.changeOrvantaLanguageToPreferredLocales(localizer.preferredLocales());
  EXPECT_EQ(app.hear(), Heard({{{"en"}, own}})) << "asked for with its own list";

  localizer.updatePreferredLocales({}, {});
  EXPECT_TRUE(localizer.originalLocales().isAbsent());
  localizer.updatePreferredLocales({}, "CA");
  EXPECT_EQ(localizer.originalLocales(), StringList::emptyList());
  EXPECT_EQ(app.hear(), Heard({{{"en"}, {"en"}}, {{"en"}, StringList::emptyList()}}));
}

TEST(Localizer, AsksForEnglishWhereTheDeviceAsksForNothing) {
  SpeakingApplication app({}, {});
  app.hear();
  app.download("en", {{"k", "english"}});
  Localizer localizer;
  EXPECT_EQ(app.hear(), Heard({{{"en"}, {"en"}}}));
  localizer.setMainBundle(nullptr);
  localizer.changeOrvantaLanguageToPreferredLocales({"xx", ""});
  EXPECT_EQ(app.hear(), Heard({{{"en"}, {"en"}}})) << "an absent bundle ranks nothing";
  EXPECT_EQ(localizer.localizedStringForKey("k"), "english");
}

TEST(Localizer, FallsBackToEnglishThenToTheKey) {
  SpeakingApplication app({{"en", {{"both", "both"}, {"english", "yes"}, {"emptyInEnglish", ""}}},
                           {"fr", {{"both", "les deux"}, {"emptyInFrench", ""}}}},
                          {"fr"});
  const std::pair<String, const char*> rows[] = {{"both", "les deux"},
                                                 {"english", "yes"},
                                                 {"emptyInFrench", ""},  // Found is found.
                                                 {"emptyInEnglish", "emptyInEnglish"},
                                                 {"nowhere", "nowhere"}};
  for (const auto& [key, text] : rows) {
    const String found = app.localizer.localizedStringForKey(key);
    EXPECT_EQ(found, text);
    EXPECT_EQ(found.isSameObject(key), key == text) << key;
    EXPECT_EQ(app.localizer.localizedStringForKey(key.view()), text);
  }
  EXPECT_TRUE(app.localizer.localizedStringForKey(String()).isAbsent());
  app.localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(app.localizer.localizedStringForKey("emptyInEnglish"), "");
}

TEST(Localizer, WithoutAnyBundleAsksAgainAtEveryLookUp) {
  SpeakingApplication app({});
  EXPECT_EQ(app.hear(), Heard({{{"en"}, StringList::emptyList()}}));
  EXPECT_EQ(app.localizer.preferredLocales(), StringList({"en"}));
  EXPECT_EQ(app.localizer.currentLanguageBundle(), nullptr);
  EXPECT_TRUE(app.localizer.localizedStringForKey("key").isAbsent());
  EXPECT_TRUE(app.localizer.localizedStringForKey(String()).isAbsent());
  EXPECT_EQ(app.hear().size(), 2U);
  app.ship("en", {{"key", "found"}});
  app.localizer.stringCache().refreshCache();
  EXPECT_EQ(app.localizer.localizedStringForKey("key"), "found")
      << "an absent bundle is not remembered";
}

TEST(Localizer, EndsInEnglishWhereAFallbackTableLeadsOn) {
  SpeakingApplication app({{"en", {}}, {"fr", {}}}, {"fr"});
  app.localizer.setFallbackTable({{"fr", "en"}, {"en", "tlh"}});
  app.localizer.changeOrvantaLanguageToPreferredLocales({"xx"});
  EXPECT_EQ(app.localizer.preferredLocales(), StringList({"en"}));
}

TEST(Localizer, KeepsTheEnglishBundleThatItFoundFirst) {
  SpeakingApplication app({{"en", {{"a", "shipped"}}}, {"fr", {}}}, {"fr"});
  const platform::Bundle* english = app.localizer.defaultLocaleBundle();
  app.download("en", {{"a", "downloaded"}});
  app.localizer.stringCache().refreshCache();
  EXPECT_EQ(app.localizer.defaultLocaleBundle(), english);
  EXPECT_EQ(app.localizer.localizedStringForKey("a"), "shipped");
  app.localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(app.localizer.localizedStringForKey("a"), "downloaded");
}

// A bundle of the application's own, without a folder.
class OwnBundle final : public platform::Bundle {
 public:
  explicit OwnBundle(std::function<String(std::string_view key)> texts)
      : texts_(std::move(texts)) {}
  [[nodiscard]] String bundlePath() const override { return "/own/en.lproj"; }
  [[nodiscard]] StringList localizations() const override { return {}; }
  [[nodiscard]] StringList preferredLocalizations() const override { return {}; }
  [[nodiscard]] String pathForResource(const String& /*name*/,
                                       const String& /*type*/) const override {
    return {};
  }
  [[nodiscard]] String textForKey(const HashedKey& key, const String& /*table*/) const override {
    return texts_(key.text);
  }

 private:
  std::function<String(std::string_view key)> texts_;
};

TEST(Localizer, KeepsTheEnglishBundleThatAnApplicationTakesBack) {
  SpeakingApplication app({{"fr", {{"k", "français"}}}}, {"fr"});
  app.localizer.stringCache().setAvailableLanguages(
      {{"en", OVLocale::initWithBundle(std::make_shared<OwnBundle>(
                  [](std::string_view key) { return key == "e" ? "own"_s : String(); }))}});
  EXPECT_EQ(app.localizer.localizedStringForKey("e"), "own");
  app.localizer.stringCache().refreshCache();
  EXPECT_EQ(app.localizer.localizedStringForKey("e"), "own");
  EXPECT_EQ(app.localizer.localizedStringForKey("k"), "français");
}

TEST(Localizer, AnswersFromTheBundleThatIsSet) {
  SpeakingApplication app({{"en", {}}, {"fr", {{"k", "français"}}}}, {"fr"});
  Localizer& localizer = app.localizer;
  localizer.setCurrentLanguageBundle(std::make_shared<OwnBundle>([&](std::string_view key) {
    localizer.setCurrentLanguageBundle(nullptr);  // While it is being asked.
    return String(key) == "k" ? "own"_s : String();
  }));
  EXPECT_EQ(localizer.localizedStringForKey("k"), "own");
  EXPECT_EQ(localizer.currentLanguageBundle(), nullptr);
  EXPECT_EQ(localizer.localizedStringForKey("k"), "français") << "the device's choice again";
}

TEST(Localizer, NamesItsLocales) {
  SpeakingApplication app({{"en", {}}}, {"en"});
  const String ofTheDevice =
      platform::Platform::current().locales->currentCalendar()->locale().localeIdentifier();
  const std::tuple<StringList, String, String> rows[] = {{{"a", "b"}, "a,b", "a"},
                                                         {StringList::emptyList(), "", ofTheDevice},
                                                         {{}, "en", ofTheDevice}};
  for (const auto& [locales, joined, ofTheCalendar] : rows) {
    app.localizer.setPreferredLocales(locales);
    EXPECT_EQ(app.localizer.currentLocalesString(), joined);
    const auto calendar = app.localizer.currentCalendar();
    EXPECT_EQ(calendar->locale().localeIdentifier(), ofTheCalendar) << locales;
    EXPECT_NE(calendar, app.localizer.currentCalendar()) << "one for each caller";
  }
}

TEST(Localizer, IsSharedByAllThreads) {
  const test::TestApplication app(test::Languages{{"en", {}}});
  Localizer* fromThread = nullptr;
  std::thread([&] { fromThread = &Localizer::sharedLocalizer(); }).join();
  EXPECT_EQ(fromThread, &Localizer::sharedLocalizer());
  EXPECT_TRUE(fromThread->isIOS9Minimum());
  EXPECT_TRUE(SystemInfo::isAtLeastMajorVersion(9, 0, 0));
  EXPECT_FALSE(SystemInfo::isAtLeastMajorVersion(9, 0, 1));
  EXPECT_TRUE(SystemInfo::isIOS() && !SystemInfo::isTVOS());
}

TEST(Punctuation, FollowsTheFirstLocale) {
  SpeakingApplication app({});
  const std::tuple<StringList, const char*, const char*> rows[] = {
      {{"ar-EG", "en"}, "1,2,3", "1\u060C2\u060C3"},
      {{"ar"}, "a,,b", "a\u060C\u060Cb"},
      {{"ar"}, "a. b? c;", "a. b? c;"},
      {{"he"}, "1,2", "1,2"},
      {{"ur"}, "1,2", "1,2"},
      {{"en", "ar"}, "1,2", "1,2"},
      {StringList::emptyList(), "1,2", "1,2"},
      {{}, "1,2", "1,2"},
  };
  for (const auto& [locales, original, expected] : rows) {
    app.localizer.setPreferredLocales(locales);
    const String text = original;
    const String localized = app.localizer.stringWithLocalizedPunctuation(text);
    EXPECT_EQ(localized, expected) << locales;
    EXPECT_EQ(localized.isSameObject(text), localized == text) << locales;
  }
  EXPECT_TRUE(Localizer::arabicComma().isSameObject(Localizer::arabicComma()));
}

TEST(Mirroring, FlipsAcrossTheVerticalAxis) {
  EXPECT_EQ(Localizer::transformForRightToLeft(true), (platform::AffineTransform{-1, 0, 0, 1}));
  EXPECT_EQ(Localizer::transformForRightToLeft(false), platform::AffineTransform::identity());
}

}  // namespace
}  // namespace orvanta
