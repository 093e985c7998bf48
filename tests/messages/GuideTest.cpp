// The code of docs/messages.md, and that it does what the page says.
#include <iostream>
#include <thread>

#include <gtest/gtest.h>

#include <orvanta/orvanta.h>

#include "../support/LocalizedApplication.h"
#include "../support/UpdateFixture.h"

namespace orvanta {
namespace {

TEST(GuideToMessages, DoesWhatItSays) {
  test::LocalizedApplication app(
      {{"en",
        {{"cart.items", "{count, plural, =0 {Nothing} one {# item} other {# items}} for {name}"},
         {"cart.total", "Total: {sum}"},
         {"trail", "{0} walked {1} km"},
         {"files.of", "%2$d files of %1$@"},
         {"export.done", "{count, plural, one {# page} other {# pages}} done"}}}});
  const StringsPayload payload = StringsPayload::dictionary(
      {{"it", test::payloadWith(test::tableOf({{"trail", "{0} a piedi"}}), "names", "bundle")}});

  const String line = localizedMessageForKey("cart.items", {{"count", 3}, {"name", "Ada"}});
  EXPECT_EQ(line, "3 items for Ada");
  const String price = localizedMessageForKey("cart.total", {{"sum", Decimal{12.5, 2}}});
  EXPECT_EQ(price, "Total: 12.50");
  const String trail = localizedMessageForKey("trail", {"Ada", 3});
  EXPECT_EQ(trail, "Ada walked 3 km");
  const String shared = localizedStringWithFormat("files.of", {"Ada", 3});
  EXPECT_EQ(shared, "3 files of Ada");

  const TextSnapshot snapshot = texts();
  std::thread worker([snapshot] {
    const String title = snapshot.localizedStringForKey("export.title");
    const String done = snapshot.localizedMessageForKey("export.done", {{"count", 40}});
    EXPECT_EQ(title, "export.title");
    EXPECT_EQ(done, "40 pages done");
  });
  worker.join();

  std::thread download([&payload] {
    OVStringCache cache;
    cache.updateStrings(payload, "names", "bundle");
  });
  download.join();
  Localizer& localizer = Localizer::sharedLocalizer();
  localizer.stringCache().refreshCache();
  localizer.changeOrvantaLanguageToPreferredLocales({"it"});
  EXPECT_EQ(localizedMessageForKey("trail", {"Ada"}), "Ada a piedi");

  localizer.stringCache().discardCachedLanguagesOlderThanShipped();
  localizer.setShippedTextsStandIn(true);
  const TextExplanation why = localizer.explain("signin.title");
  if (why.source != TextSource::current) {
    std::cerr << why.text << " comes from " << why.bundlePath << '\n';
  }
  EXPECT_EQ(why.source, TextSource::key);
  localizer.setTextObserver([](const TextProblem& problem) {
    std::cerr << problem.key << " in " << problem.locale << ' ' << problem.reason << '\n';
  });
  localizer.setTextObserver({});
  localizer.setShippedTextsStandIn(false);
}

}  // namespace
}  // namespace orvanta
