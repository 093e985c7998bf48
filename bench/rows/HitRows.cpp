// Look-ups of keys that the current language has.
#include <thread>

#include <sys/single_threaded.h>

#include "contenders/Application.h"
#include "contenders/Gettext.h"
#include "data/TableForms.h"
#include "rows/LookUps.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kStrings = 10'000;

// An application in French with a table of some size. It has an English table, too, like every
// application; that is not asked.
class HitApplication {
 public:
  HitApplication(const std::filesystem::path& folder, std::size_t strings)
      : table_(makeTable(languageNamed("fr"), makeKeys(strings))),
        questions_(table_),
        map_(table_),
        application_(folder) {
    application_.ship("fr", table_, textFormUtf8);
    application_.ship("en", makeTable(languageNamed("en"), makeKeys(kStrings)), textFormUtf8);
    platform::Platform::install(application_.makePlatform("fr"));
    localizer_ = std::make_unique<Localizer>();
  }

  [[nodiscard]] Row row(std::string name, double goal) {
    Row row{.name = std::move(name), .operations = table_.size(), .warmUp = true, .goal = goal};
    row.mostAllocations = 0;
    row.amount = Amount{static_cast<double>(table_.size()), "strings", false};
    row.contenders = {askMap(map_, questions_), askLocalizer(*localizer_, questions_),
                      askLocalizerWithViews(*localizer_, questions_)};
    return row;
  }

  /// The same with a snapshot.
  [[nodiscard]] Row snapshotRow(std::string name, double goal) {
    Row row = this->row(std::move(name), goal);
    row.contenders = {askMap(map_, questions_), askSnapshot(texts(*localizer_), questions_)};
    return row;
  }

  [[nodiscard]] const Table& table() const noexcept { return table_; }
  [[nodiscard]] const Questions& questions() const noexcept { return questions_; }

 private:
  Table table_;
  Questions questions_;
  ArenaMap map_;
  Application application_;
  std::unique_ptr<Localizer> localizer_;
};

}  // namespace

void hitRows(Bench& bench) {
  if (!bench.isWanted("hit")) {
    return;
  }
  const ScratchFolder folder = bench.folder("hit");
  HitApplication application(folder.path(), kStrings);
  gettext::makeCatalog(folder.path(), "fr", "hit", application.table());
  gettext::bindDomain("hit", folder.path());
  icu::makeBundle(folder.path(), "fr", application.table());
  const icu::Bundle bundle = icu::open(folder.path(), "fr");
  qt::makeTranslations(folder.path() / "fr.qm", application.table());
  const auto translator = qt::open(folder.path() / "fr.qm");

  Row row = application.row("hit", 0.7);
  row.passes = 5;
  row.samples = 41;
  row.contenders.push_back(askGettext("hit", application.questions()));
  row.contenders.push_back(askIcu(bundle.get(), application.questions()));
  row.contenders.push_back(askQt(*translator, nullptr, application.questions()));
  bench.run(row);

  Row snapshot = application.snapshotRow("snapshot-hit", 0.7);
  snapshot.passes = row.passes;
  snapshot.samples = row.samples;
  bench.run(snapshot);
}

void hitSizeRows(Bench& bench) {
  struct Size {
    const char* name;
    std::size_t strings;
    std::size_t passes;
    int samples;
  };
  for (const Size& size : {Size{"hit-1k", 1'000, 50, 41}, Size{"hit-100k", 100'000, 1, 31},
                           Size{"hit-1m", 1'000'000, 1, 15}}) {
    if (!bench.isWanted(size.name)) {
      continue;
    }
    const ScratchFolder folder = bench.folder(size.name);
    HitApplication application(folder.path(), size.strings);
    Row row = application.row(size.name, 0.8);
    row.passes = size.passes;
    row.samples = size.samples;
    bench.run(row);
  }
}

// Once a thread was started, the reference counts of texts take atomic instructions until the
// process ends. Therefore this is the last row of a run.
void hitThreadedRow(Bench& bench) {
  std::thread([] {}).join();
  if (__libc_single_threaded != 0) {
    throw std::runtime_error("the C library takes no notice of threads");
  }
  const ScratchFolder folder = bench.folder("hit-threaded");
  HitApplication application(folder.path(), kStrings);
  Row row = application.row("hit-threaded", 0.7);
  row.passes = 5;
  row.samples = 41;
  bench.run(row);
}

}  // namespace orvanta::bench
