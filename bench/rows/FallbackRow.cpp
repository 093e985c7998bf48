// Look-ups of keys that only the English table has.
#include "contenders/Application.h"
#include "contenders/Gettext.h"
#include "data/TableForms.h"
#include "rows/LookUps.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kStrings = 10'000;

}  // namespace

void fallbackRow(Bench& bench) {
  if (!bench.isWanted("fallback")) {
    return;
  }
  const ScratchFolder folder = bench.folder("fallback");
  const auto keys = makeKeys(2 * kStrings);
  const Table french = makeTable(languageNamed("fr"), {keys.begin(), keys.begin() + kStrings});
  const Table english = makeTable(languageNamed("en"), {keys.begin() + kStrings, keys.end()});
  const Questions questions(english);

  const Application application(folder.path());
  application.ship("fr", french, textFormUtf8);
  application.ship("en", english, textFormUtf8);
  platform::Platform::install(application.makePlatform("fr"));
  Localizer localizer;
  const ArenaMap frenchMap(french);
  const ArenaMap englishMap(english);

  gettext::makeCatalog(folder.path(), "fr", "fallback", french);
  gettext::makeCatalog(folder.path(), "en", "fallback", english);
  gettext::bindDomain("fallback", folder.path());
  icu::makeBundle(folder.path(), "root", english);
  icu::makeBundle(folder.path(), "fr", french);
  const icu::Bundle bundle = icu::open(folder.path(), "fr");
  qt::makeTranslations(folder.path() / "fr.qm", french);
  qt::makeTranslations(folder.path() / "en.qm", english);
  const auto frenchTranslator = qt::open(folder.path() / "fr.qm");
  const auto englishTranslator = qt::open(folder.path() / "en.qm");

  bench.run(
      {.name = "fallback",
       .operations = kStrings,
       .passes = 5,
       .samples = 41,
       .warmUp = true,
       .goal = 0.5,
       .contenders = {askMaps(frenchMap, englishMap, questions), askLocalizer(localizer, questions),
                      askLocalizerWithViews(localizer, questions),
                      askGettext("fallback", questions), askIcu(bundle.get(), questions),
                      askQt(*frenchTranslator, englishTranslator.get(), questions)}});
}

}  // namespace orvanta::bench
