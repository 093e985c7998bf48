#include <thread>

#include <gtest/gtest.h>

#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/SystemInfo.h>
#include <orvanta/locale/Version.h>

#include "../support/TestApplication.h"

namespace orvanta {
namespace {

using test::TestApplication;

// Writes down what each notification carried.
class Listener {
 public:
  struct Heard {
    StringList preferred;
    StringList raw;
    friend bool operator==(const Heard&, const Heard&) = default;
  };

  explicit Listener(TestApplication& app) : app_(app) {
    platform::Platform::current().notifications->addObserver(
        this, String(OVPreferredLocaleDidChangeNotification), nullptr,
        [this](const platform::Notification& notification) {
          EXPECT_EQ(notification.object, nullptr);
          EXPECT_EQ(notification.userInfo.size(), 2U);
          heard_.push_back({*notification.userInfo.find(OVPreferredLocaleKey),
                            *notification.userInfo.find(OVRawLocaleKey)});
        });
  }
  ~Listener() { platform::Platform::current().notifications->removeObserver(this); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  // What was posted since the last call; nothing may have come before the main queue ran.
  std::vector<Heard> hear() {
    EXPECT_TRUE(heard_.empty());
    app_.loop->runPending();
    return std::exchange(heard_, {});
  }

 private:
  TestApplication& app_;
  std::vector<Heard> heard_;
};

using Heard = std::vector<Listener::Heard>;

TEST(Localizer, StartsInWhatTheDeviceAsksForAndSaysSoLater) {
  TestApplication app({{"en", {}}, {"fr", {{"hello", "bonjour"}}}, {"de", {}}}, {"fr-CA", "de"});
  Localizer localizer;
  Listener listener(app);
  EXPECT_EQ(localizer.currentLocales(), StringList({"fr", "de"}));
  EXPECT_EQ(localizer.localizedStringForKey("hello"), "bonjour");
  EXPECT_EQ(listener.hear(), Heard({{{"fr", "de"}, {"fr", "de"}}}));
}

TEST(Localizer, AdoptsARegionalRequestEndToEnd) {
  TestApplication app({{"en", {}}, {"fr", {{"hello", "bonjour"}}}});
  Localizer localizer;
  Listener listener(app);
  listener.hear();
  localizer.updatePreferredLocales({"fr", "en"}, "CA");
  const StringList expanded = {"fr-CA", "fr", "en-CA", "en"};
  EXPECT_EQ(localizer.originalLocales(), expanded);
  EXPECT_EQ(localizer.preferredLocales(), expanded);
  EXPECT_EQ(localizer.currentLanguageBundle(), localizer.languageBundleForLocale("fr"));
  EXPECT_EQ(localizer.currentLocalesString(), "fr-CA,fr,en-CA,en");
  EXPECT_EQ(localizer.localizedStringForKey("hello"), "bonjour");
  EXPECT_EQ(listener.hear(), Heard({{expanded, expanded}}));
}

struct ChangeRow {
  const char* what;
  StringList requested;
  StringList preferred;
  StringList raw;
};

TEST(Localizer, PostsOnceForEachChange) {
  TestApplication app({{"en", {}}, {"fr", {}}, {"ar", {}}}, {"fr"});
  Localizer localizer;
  Listener listener(app);
  listener.hear();
  const ChangeRow rows[] = {
      {"an absent list is English", {}, {"en"}, {"en"}},
      {"an empty one too, but stays what was asked for",
       StringList::emptyList(),
       {"en"},
       StringList::emptyList()},
      {"nothing available: the device's choice", {"xx"}, {"fr"}, {"fr"}},
      {"what is not available is dropped", {"xx", "ar-EG"}, {"ar-EG"}, {"xx", "ar-EG"}},
      {"the same language again", {"ar-EG"}, {"ar-EG"}, {"ar-EG"}},
  };
  for (const ChangeRow& row : rows) {
    localizer.changeOrvantaLanguageToPreferredLocales(row.requested);
    EXPECT_EQ(localizer.preferredLocales(), row.preferred) << row.what;
    EXPECT_EQ(listener.hear(), Heard({{row.preferred, row.raw}})) << row.what;
  }
  EXPECT_TRUE(localizer.rightToLeftOrientation());
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(listener.hear(), Heard({{{"fr"}, {"fr"}}, {{"en"}, {"en"}}}))
      << "each posting carries its own change";
}

TEST(Localizer, TellsWhatWasAskedForWhenThatIsItsOwnList) {
  TestApplication app(test::Languages{{"en", {}}});
  Localizer localizer;
  Listener listener(app);
  listener.hear();
  const StringList own = {"xx", "en"};
  localizer.setPreferredLocales(own);
  localizer.changeOrvantaLanguageToPreferredLocales(localizer.preferredLocales());
  EXPECT_EQ(listener.hear(), Heard({{{"en"}, own}}));
}

TEST(Localizer, AsksForEnglishWhereTheDeviceAsksForNothing) {
  TestApplication app({}, {});
  app.download("en", {{"k", "english"}});
  Localizer localizer;
  Listener listener(app);
  EXPECT_EQ(listener.hear(), Heard({{{"en"}, {"en"}}}));
  localizer.setMainBundle(nullptr);
  localizer.changeOrvantaLanguageToPreferredLocales({"xx", ""});
  EXPECT_EQ(listener.hear(), Heard({{{"en"}, {"en"}}})) << "an absent bundle ranks nothing";
  EXPECT_EQ(localizer.localizedStringForKey("k"), "english");
}

TEST(Localizer, UpdatesFromAnAbsentList) {
  TestApplication app(test::Languages{{"en", {}}});
  Localizer localizer;
  Listener listener(app);
  listener.hear();
  localizer.updatePreferredLocales({}, {});
  EXPECT_TRUE(localizer.originalLocales().isAbsent());
  localizer.updatePreferredLocales({}, "CA");
  EXPECT_EQ(localizer.originalLocales(), StringList::emptyList());
  EXPECT_EQ(listener.hear(), Heard({{{"en"}, {"en"}}, {{"en"}, StringList::emptyList()}}));
}

TEST(Localizer, FallsBackToEnglishThenToTheKey) {
  TestApplication app({{"en", {{"both", "both"}, {"english", "yes"}, {"emptyInEnglish", ""}}},
                       {"fr", {{"both", "les deux"}, {"emptyInFrench", ""}}}},
                      {"fr"});
  Localizer localizer;
  EXPECT_EQ(localizer.localizedStringForKey("both"), "les deux");
  EXPECT_EQ(localizer.localizedStringForKey("english"), "yes");
  EXPECT_EQ(localizer.localizedStringForKey("emptyInFrench"), "") << "found is found";
  EXPECT_EQ(localizer.localizedStringForKey("emptyInEnglish"), "emptyInEnglish");
  EXPECT_EQ(localizer.localizedStringForKey(std::string_view("nowhere")), "nowhere");
  const String key = "nowhere";
  EXPECT_TRUE(localizer.localizedStringForKey(key).isSameObject(key));
  EXPECT_TRUE(localizer.localizedStringForKey(String()).isAbsent());
  localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(localizer.localizedStringForKey("emptyInEnglish"), "");
}

TEST(Localizer, WithoutAnyBundleAsksAgainAtEveryLookUp) {
  TestApplication app;
  Localizer localizer;
  Listener listener(app);
  EXPECT_EQ(listener.hear(), Heard({{{"en"}, StringList::emptyList()}}));
  EXPECT_EQ(localizer.preferredLocales(), StringList({"en"}));
  EXPECT_EQ(localizer.currentLanguageBundle(), nullptr);
  EXPECT_TRUE(localizer.localizedStringForKey("key").isAbsent());
  EXPECT_TRUE(localizer.localizedStringForKey(String()).isAbsent());
  EXPECT_EQ(listener.hear().size(), 2U);
  app.ship("en", {{"key", "found"}});
  localizer.stringCache().refreshCache();
  EXPECT_EQ(localizer.localizedStringForKey("key"), "found")
      << "an absent bundle is not remembered";
}

TEST(Localizer, EndsInEnglishWhereAFallbackTableLeadsOn) {
  TestApplication app({{"en", {}}, {"fr", {}}}, {"fr"});
  Localizer localizer;
  localizer.setFallbackTable({{"fr", "en"}, {"en", "tlh"}});
  localizer.changeOrvantaLanguageToPreferredLocales({"xx"});
  EXPECT_EQ(localizer.preferredLocales(), StringList({"en"}));
}

TEST(Localizer, KeepsTheEnglishBundleThatItFoundFirst) {
  TestApplication app({{"en", {{"a", "shipped"}}}, {"fr", {}}}, {"fr"});
  Localizer localizer;
  const platform::Bundle* english = localizer.defaultLocaleBundle();
  app.download("en", {{"a", "downloaded"}});
  localizer.stringCache().refreshCache();
  EXPECT_EQ(localizer.defaultLocaleBundle(), english);
  EXPECT_EQ(localizer.localizedStringForKey("a"), "shipped");
  localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  EXPECT_EQ(localizer.localizedStringForKey("a"), "downloaded");
}

TEST(Localizer, NamesItsLocales) {
  TestApplication app({{"en", {}}}, {"pt-BR", "en"});
  Localizer localizer;
  EXPECT_EQ(localizer.devicePreferredLocales(), StringList({"pt-BR", "en"}));
  const String identifier = localizer.currentCalendar()->locale().localeIdentifier();
  EXPECT_EQ(identifier, "en");
  localizer.setPreferredLocales({"a", "b"});
  EXPECT_EQ(localizer.currentLocalesString(), "a,b");
  EXPECT_EQ(localizer.currentCalendar()->locale().localeIdentifier(), "a");
  localizer.setPreferredLocales(StringList::emptyList());
  EXPECT_EQ(localizer.currentLocalesString(), "");
  localizer.setPreferredLocales({});
  EXPECT_EQ(localizer.currentLocalesString(), "en");
  const auto calendar = localizer.currentCalendar();
  EXPECT_EQ(calendar->locale().localeIdentifier(),
            platform::Platform::current().locales->currentCalendar()->locale().localeIdentifier());
  EXPECT_NE(calendar, localizer.currentCalendar());
}

TEST(Localizer, IsSharedByAllThreads) {
  TestApplication app(test::Languages{{"en", {}}});
  Localizer* fromThread = nullptr;
  std::thread([&] { fromThread = &Localizer::sharedLocalizer(); }).join();
  EXPECT_EQ(fromThread, &Localizer::sharedLocalizer());
  EXPECT_TRUE(Localizer::sharedLocalizer().isIOS9Minimum());
}

TEST(SystemInfo, ComparesVersions) {
  TestApplication app;
  EXPECT_TRUE(SystemInfo::isAtLeastMajorVersion(8, 99, 0));
  EXPECT_TRUE(SystemInfo::isAtLeastMajorVersion(9, 0, 0));
  EXPECT_FALSE(SystemInfo::isAtLeastMajorVersion(9, 0, 1));
  EXPECT_FALSE(SystemInfo::isTVOS());
  EXPECT_TRUE(SystemInfo::isIOS());
}

TEST(Version, IsInTheBinary) {
  EXPECT_EQ(OrvantaLocalizerVersionNumber, 1.0);
  EXPECT_STREQ(reinterpret_cast<const char*>(OrvantaLocalizerVersionString),
               "@(#)PROGRAM:OrvantaLocalizer  PROJECT:OrvantaLocalizer-1\n");
}

struct PunctuationRow {
  StringList locales;
  const char* text;
  const char* localized;
};

TEST(Punctuation, FollowsTheFirstLocale) {
  TestApplication app;
  Localizer localizer;
  const PunctuationRow rows[] = {
      {{"ar-EG", "en"}, "1,2,3", "1\u060C2\u060C3"},
      {{"ar"}, "a,,b", "a\u060C\u060Cb"},
      {{"ar"}, "a. b? c;", "a. b? c;"},
      {{"he"}, "1,2", "1,2"},
      {{"ur"}, "1,2", "1,2"},
      {{"en", "ar"}, "1,2", "1,2"},
      {StringList::emptyList(), "1,2", "1,2"},
      {{}, "1,2", "1,2"},
  };
  for (const PunctuationRow& row : rows) {
    localizer.setPreferredLocales(row.locales);
    const String text = row.text;
    const String localized = localizer.stringWithLocalizedPunctuation(text);
    EXPECT_EQ(localized, row.localized) << row.locales;
    EXPECT_EQ(localized.isSameObject(text), localized == text) << row.locales;
  }
  EXPECT_TRUE(Localizer::arabicComma().isSameObject(Localizer::arabicComma()));
}

TEST(Mirroring, FlipsAcrossTheVerticalAxis) {
  const auto x = [](const platform::AffineTransform& t) { return t.a * 10 + t.c * 5 + t.tx; };
  const auto y = [](const platform::AffineTransform& t) { return t.b * 10 + t.d * 5 + t.ty; };
  const auto mirrored = Localizer::transformForRightToLeft(true);
  EXPECT_EQ(x(mirrored), -10);
  EXPECT_EQ(y(mirrored), 5);
  EXPECT_EQ(Localizer::transformForRightToLeft(false), platform::AffineTransform::identity());
}

}  // namespace
}  // namespace orvanta
