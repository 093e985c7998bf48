// Lets each single file operation of an update fail in turn, and looks at what is left on disk.
#include <algorithm>
#include <cerrno>
#include <map>
#include <utility>

#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCache.h>

#include "../support/ForwardingFileManager.h"
#include "../support/TestApplication.h"
#include "../support/UpdateFixture.h"

namespace orvanta {
namespace {

using test::Fault;
using test::ForwardingFileManager;
using test::payloadOf;

const test::Pairs kOld = {{"a", "old a"}, {"b", "old b"}};
const test::Pairs kNew = {{"a", "new a"}, {"b", "new b"}, {"c", "new c"}};

enum class Table { old, whole, torn };

Table tableOnDisk(OVStringCache& cache) {
  cache.refreshCache();
  const auto holds = [&](const test::Pairs& pairs) {
    return std::all_of(pairs.begin(), pairs.end(), [&](const auto& pair) {
      return cache.localizedStringForKey(pair.first, "fr") == pair.second.c_str();
    });
  };
  if (holds(kNew)) {
    return Table::whole;
  }
  return holds(kOld) && cache.localizedStringForKey("c", "fr") == "c" ? Table::old : Table::torn;
}

using Walk = std::map<Table, int>;

// One update for each of its operations, which fails there. Ends with the update that no longer
// reaches the operation.
Walk walk(const Fault& fault) {
  Walk walked;
  for (int failing = 0;; ++failing) {
    test::TestApplication app;
    platform::Platform replacements = platform::Platform::current();
    const auto files = std::make_shared<ForwardingFileManager>(replacements.files);
    replacements.files = files;
    replacements.bundles = nullptr;
    platform::Platform::install(standard::makeStandardPlatform({}, replacements));

    OVStringCache cache;
    cache.updateStrings(payloadOf({{"fr", kOld}}), "main", "app");
    int operation = 0;
    files->setHook([&](std::string_view, std::string_view) {
      return operation++ == failing ? fault : Fault::none();
    });
    cache.updateStrings(payloadOf({{"fr", kNew}}), "main", "app");
    files->setHook({});

    const Table left = tableOnDisk(cache);
    ++walked[left];
    EXPECT_EQ(cache.cachedLanguages().size(), 1U) << "operation " << failing;
    const bool saidSo = app.log.back().starts_with("file ");
    EXPECT_TRUE(!saidSo || left == Table::whole) << "operation " << failing;

    cache.updateStrings(payloadOf({{"de", kNew}}), "main", "app");
    EXPECT_EQ(test::tablesBelow(app.cacheFolder()), 2U)
        << "the next update sweeps what operation " << failing << " left";
    if (operation <= failing) {
      return walked;
    }
  }
}

TEST(FaultWalk, LeavesTheWholeOldTableOrTheWholeNewOne) {
  const std::pair<const char*, Fault> rows[] = {
      {"disk full", Fault::fail(ENOSPC)},
      {"cut short at once", Fault::cutShort(1, EIO)},
      {"cut short late", Fault::cutShort(60, EIO)},
  };
  for (const auto& [what, fault] : rows) {
    Walk walked = walk(fault);
    EXPECT_EQ(walked[Table::torn], 0) << what;
    EXPECT_GT(walked[Table::old], 2) << what;
    EXPECT_GT(walked[Table::whole], 1) << what;
  }
}

}  // namespace
}  // namespace orvanta
