#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>

#include <gtest/gtest.h>

#include <orvanta/messages/LocalizedMessages.h>
#include <orvanta/messages/TextSnapshot.h>

#include "../support/TestApplication.h"
#include "../support/UpdateFixture.h"

namespace orvanta {
namespace {

const test::Languages kShipped = {
    {"en",
     {{"items", "{n, plural, one {# item} other {# items}} for {name}"},
      {"only-english", "{n, plural, one {one} other {many}}"},
      {"broken-french", "{n} in English"},
      {"broken", "English {"},
      {"empty-english", ""},
      {"format", "%1$@ has %2$d"},
      {"plain", "It's {0}"}}},
    {"fr",
     {{"items", "{n, plural, one {# article} other {# articles}} pour {name}"},
      {"broken-french", "{n, plural, one {"},
      {"broken", "{français"},
      {"broken-alone", "{seul"},
      {"empty-french", ""},
      {"format", "%2$d pour %1$@"}}},
    {"ar", {{"items", "{n, plural, zero {صفر} two {اثنان} few {# قليل} other {#}}، {name}"}}},
};

// Records the problems that an observer gets.
class Observed {
 public:
  explicit Observed(Localizer& localizer) {
    localizer.setTextObserver([this](const TextProblem& problem) {
      static const char* const kNames[] = {"english", "key", "malformed"};
      said_ += std::string(kNames[static_cast<int>(problem.kind)]) + ' ' + problem.key.str() + ' ' +
               problem.locale.str();
      if (problem.kind == TextProblem::Kind::malformedMessage) {
        said_ += ' ' + std::to_string(problem.position);
        EXPECT_FALSE(problem.reason.empty());
      }
      said_ += '\n';
    });
  }
  std::string take() { return std::exchange(said_, {}); }

 private:
  std::string said_;
};

TEST(LocalizedMessages, SpeakTheLanguageThatTheTextComesFrom) {
  test::TestApplication app(kShipped);
  Localizer localizer;
  Observed observed(localizer);
  const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
      {"fr", "items", "0 article pour Ada", ""},
      {"en", "items", "0 items for Ada", ""},
      {"ar", "items", "صفر، \u2068Ada\u2069", ""},
      {"fr-CA", "only-english", "many", "english only-english fr-CA\n"},
      {"fr", "broken-french", "0 in English", "malformed broken-french fr 17\n"},
      {"fr", "broken", "English {", "malformed broken fr 10\nmalformed broken en 9\n"},
      {"fr", "broken-alone", "{seul", "malformed broken-alone fr 5\n"},
      {"fr", "empty-french", "", ""},
      {"fr", "empty-english", "empty-english", "key empty-english fr\n"},
      {"fr", "{n, plural, one {a} other {b}}", "b", "key {n, plural, one {a} other {b}} fr\n"},
      {"en", "no {key", "no {key", "key no {key en\n"},
      {"ar", "plain", "It's 0", "english plain ar\n"},
  };
  const std::vector<MessageArgument> arguments = {0, {"n", 0}, {"name", "Ada"}};
  for (const auto& [locale, key, message, problems] : rows) {
    SCOPED_TRACE(testing::Message() << locale << ' ' << key);
    localizer.changeOrvantaLanguageToPreferredLocales({locale});
    const TextSnapshot snapshot = texts(localizer);
    EXPECT_EQ(localizedMessageForKey(localizer, key, arguments), message);
    EXPECT_EQ(observed.take(), problems);
    EXPECT_EQ(snapshot.localizedMessageForKey(key, arguments), message) << "in a snapshot";
  }
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  EXPECT_EQ(localizedStringWithFormat(localizer, "format", {"Ada", 3}), "3 pour Ada");
  EXPECT_EQ(localizedStringWithFormat(localizer, "%d clés", {3}), "3 clés");
  EXPECT_EQ(observed.take(), "key %d clés fr\n");
}

TEST(LocalizedMessages, AreAbsentWithoutAnyBundle) {
  test::TestApplication app;
  Localizer localizer;
  EXPECT_TRUE(localizedMessageForKey(localizer, "key", {}).isAbsent());
  EXPECT_TRUE(localizedStringWithFormat(localizer, "key", {}).isAbsent());
  EXPECT_TRUE(texts(localizer).localizedStringForKey("key").isAbsent());
  EXPECT_TRUE(texts(localizer).localizedMessageForKey("key", {}).isAbsent());
  EXPECT_TRUE(TextSnapshot().localizedStringForKey("key").isAbsent());
  EXPECT_TRUE(TextSnapshot().localizedMessageForKey("key", {}).isAbsent());
  EXPECT_TRUE(localizer.explain("key").text.isAbsent());
}

TEST(TextObserver, MayLookUpAndReplaceItself) {
  test::TestApplication app(kShipped);
  Localizer localizer;
  int calls = 0;
  localizer.setTextObserver([&](const TextProblem&) {
    ++calls;
    localizer.setTextObserver({});
    EXPECT_EQ(localizer.localizedStringForKey("nowhere"), "nowhere");
  });
  EXPECT_EQ(localizer.localizedStringForKey("missing"), "missing");
  EXPECT_EQ(localizer.localizedStringForKey("missing"), "missing");
  EXPECT_EQ(calls, 1);
}

struct ChainRow {
  const char* key;
  const char* text;
  TextSource source;
  const char* locale;
  bool isDownloaded;
};

void expectExplained(Localizer& localizer, const ChainRow& row) {
  const TextSnapshot snapshot = texts(localizer);
  const TextExplanation explanation = localizer.explain(row.key);
  EXPECT_EQ(localizer.localizedStringForKey(row.key), row.text) << row.key;
  EXPECT_EQ(snapshot.localizedStringForKey(row.key), row.text) << row.key;
  EXPECT_EQ(explanation.text, row.text) << row.key;
  EXPECT_EQ(explanation.source, row.source) << row.key;
  EXPECT_EQ(explanation.locale, row.locale) << row.key;
  EXPECT_EQ(explanation.isDownloaded, row.isDownloaded) << row.key;
  EXPECT_EQ(explanation.bundlePath.isPresent(), row.locale != nullptr) << row.key;
}

TEST(TextChain, AsksShippedTextsBeforeEnglishWhereTheyStandIn) {
  test::TestApplication app(
      {{"en", {{"a", "A"}, {"b", "B"}, {"d", ""}, {"e", "E"}, {"f", "F"}}},
       {"fr", {{"a", "shipped a"}, {"b", "shipped b"}, {"d", "shipped d"}, {"c", ""}}}});
  app.download("fr", {{"a", "new a"}});
  app.download("en", {{"e", "new E"}, {"f", ""}});
  Localizer localizer;
  localizer.changeOrvantaLanguageToPreferredLocales({"fr-CA"});
  const ChainRow without[] = {{"a", "new a", TextSource::current, "fr", true},
                              {"b", "b", TextSource::key, nullptr, false},
                              {"e", "new E", TextSource::english, "en", true}};
  for (const ChainRow& row : without) {
    expectExplained(localizer, row);
  }
  localizer.setShippedTextsStandIn(true);
  const ChainRow rows[] = {{"a", "new a", TextSource::current, "fr", true},
                           {"b", "shipped b", TextSource::standIn, "fr", false},
                           {"c", "", TextSource::standIn, "fr", false},
                           {"d", "shipped d", TextSource::standIn, "fr", false},
                           {"e", "new E", TextSource::english, "en", true},
                           {"f", "F", TextSource::english, "en", false},
                           {"x", "x", TextSource::key, nullptr, false}};
  for (const ChainRow& row : rows) {
    expectExplained(localizer, row);
  }
  localizer.setStringCache(nullptr);
  for (const ChainRow& row : rows) {
    expectExplained(localizer, row);
  }
  localizer.changeOrvantaLanguageToPreferredLocales({"en"});
  expectExplained(localizer, {"b", "B", TextSource::standIn, "en", false});
}

TEST(TextChain, TakesTheLocaleFromTheTableBeforeTheFolder) {
  test::TestApplication app({{"en", {}},
                             {"house-style",
                              {{String(OVOrvantaLanguageAppleIDKey).str(), "pl"},
                               {"n", "{n, plural, one {a} few {b} many {c} other {d}}"}}}});
  Localizer localizer;
  localizer.changeOrvantaLanguageToPreferredLocales({"house-style"});
  EXPECT_EQ(localizedMessageForKey(localizer, "n", {{"n", 22}}), "b");
  EXPECT_EQ(localizer.explain("n").locale, "pl");
}

TEST(Explanation, SaysHowTheCurrentLocaleCameAbout) {
  test::TestApplication app({{"en", {}}, {"en-GB", {}}, {"fr", {}}, {"zh-Hans", {}}});
  Localizer localizer;
  const std::tuple<StringList, const char*, const char*, const char*, const char*> rows[] = {
      {{"xx", "fr"}, "fr", "fr", nullptr, nullptr},
      {{"xx", "fr-CA"}, "fr-CA", "fr-CA", nullptr, "fr"},
      {{" en-IE "}, "en-GB", " en-IE ", "en-IE", nullptr},
      {{"en-NZ"}, "en-AU", "en-NZ", "en-NZ", "en"},
      {{"zh-TW"}, "zh-Hans", "zh-TW", "zh", "zh"},
      {{}, "en", "en", nullptr, nullptr},
      {StringList::emptyList(), "en", nullptr, nullptr, nullptr},
  };
  for (const auto& [requested, locale, request, fallbackRow, languagePart] : rows) {
    localizer.changeOrvantaLanguageToPreferredLocales(requested);
    const TextExplanation explanation = localizer.explain("key");
    EXPECT_EQ(explanation.currentLocale, locale);
    EXPECT_EQ(explanation.request, request) << locale;
    EXPECT_EQ(explanation.fallbackRow, fallbackRow) << locale;
    EXPECT_EQ(explanation.languagePart, languagePart) << locale;
  }
}

TEST(OlderTables, AreDiscardedByTheirVersions) {
  // Downloaded and shipped version; null: the table names none.
  const std::tuple<const char*, const char*, const char*, bool> rows[] = {
      {"aa", "1.9", "1.10", true},    {"bb", "1.10", "1.9", false},
      {"cc", "2", "2.0.0", false},    {"dd", nullptr, "0", true},
      {"ee", "1", nullptr, false},    {"ff", nullptr, nullptr, false},
      {"gg", "1.2-rc", "1.3", true},  {"hh", "99999999999999999999", "100000000000000000000", true},
      {"ii", "01.007", "1.7", false},
  };
  test::TestApplication app;
  const std::string key(OVOrvantaLanguageVersionKey);
  for (const auto& [language, downloaded, shipped, isDiscarded] : rows) {
    app.download(language, downloaded == nullptr ? test::Strings{{"k", "v"}}
                                                 : test::Strings{{key, downloaded}});
    app.ship(language,
             shipped == nullptr ? test::Strings{{"k", "v"}} : test::Strings{{key, shipped}});
  }
  app.download("alone", {{"k", "v"}});
  OVStringCache cache;
  const StringList discarded = cache.discardCachedLanguagesOlderThanShipped();
  const StringList cached = cache.cachedLanguageCodes();
  const auto holds = [](const StringList& list, const char* language) {
    return std::find(list.begin(), list.end(), language) != list.end();
  };
  for (const auto& [language, downloaded, shipped, isDiscarded] : rows) {
    EXPECT_EQ(holds(discarded, language), isDiscarded) << language;
    EXPECT_EQ(holds(cached, language), !isDiscarded) << language;
  }
  EXPECT_TRUE(holds(cached, "alone"));
  EXPECT_EQ(cache.discardCachedLanguagesOlderThanShipped(), StringList::emptyList());
}

// Snapshots answer on two threads, as the main thread did, while that changes languages.
TEST(TextSnapshotThreads, AnswerAsTheMainThreadDidWhenTheyWereTaken) {
  test::TestApplication app(kShipped);
  Localizer localizer;
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  const TextSnapshot french = texts(localizer);
  const String expected =
      localizedMessageForKey(localizer, "items", {{"n", 1.5}, {"name", "ليلى"}});
  std::atomic<bool> isOver = false;
  const auto ask = [&](const TextSnapshot& snapshot) {
    for (int round = 0; round < 200 || !isOver; ++round) {
      ASSERT_TRUE(snapshot.localizedMessageForKey("items", {{"n", 1.5}, {"name", "ليلى"}}) ==
                      expected &&
                  snapshot.localizedStringForKey("nowhere") == "nowhere" &&
                  snapshot.currentLocales() == StringList({"fr"}));
    }
  };
  std::thread first([&] { ask(french); });
  std::thread second([&, copy = french] { ask(copy); });
  for (int round = 0; round < 50; ++round) {
    app.ship("fr", {{"items", "round " + std::to_string(round)}});
    localizer.stringCache().refreshCache();
    localizer.changeOrvantaLanguageToPreferredLocales({round % 2 == 0 ? "fr" : "en"});
    static_cast<void>(localizer.localizedStringForKey("items"));
    app.loop->runPending();
  }
  isOver = true;
  first.join();
  second.join();
  EXPECT_EQ(localizedMessageForKey(localizer, "items", {{"n", 1}, {"name", "Ada"}}),
            "1 item for Ada");
}

// A worker writes downloads through a cache of its own while the main thread looks up and changes
// languages; then the main thread adopts them.
TEST(DownloadThread, WritesTablesThatTheMainThreadThenAdopts) {
  test::TestApplication app(kShipped);
  Localizer localizer;
  std::atomic<bool> isWritten = false;
  std::thread worker([&] {
    OVStringCache cache;
    for (int round = 0; round < 10; ++round) {
      const test::Pairs pairs = {{"items", "round " + std::to_string(round)}};
      cache.updateStrings(test::payloadOf({{"it", pairs}, {"fr", pairs}}), "main", "app");
    }
    isWritten = true;
  });
  while (!isWritten) {
    localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
    EXPECT_NE(localizer.localizedStringForKey("items"), "items");
    localizer.changeOrvantaLanguageToPreferredLocales({"en"});
    app.loop->runPending();
  }
  worker.join();
  localizer.stringCache().refreshCache();
  localizer.changeOrvantaLanguageToPreferredLocales({"it"});
  EXPECT_EQ(localizer.localizedStringForKey("items"), "round 9");
  localizer.changeOrvantaLanguageToPreferredLocales({"fr"});
  EXPECT_EQ(localizer.localizedStringForKey("items"), "round 9");
}

}  // namespace
}  // namespace orvanta
