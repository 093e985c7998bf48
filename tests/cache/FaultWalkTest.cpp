// Makes each file operation of an update fail in turn, or be the last before a loss of power, and
// checks what is on the disk afterwards.
#include <cerrno>

#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCache.h>

#include "../support/PowerLoss.h"
#include "../support/WatchedApplication.h"

namespace orvanta {
namespace {

using test::Fault;

const test::Pairs kOld = {{"a", "old a"}, {"b", "old b"}};
const test::Pairs kNew = {{"a", "new a"}, {"b", "new b"}, {"c", "new c"}};

enum class Table { none, old, whole, torn };

Table tableOnDisk() {
  OVStringCache cache;
  const auto holds = [&](const test::Pairs& pairs) {
    return std::all_of(pairs.begin(), pairs.end(), [&](const auto& pair) {
      return cache.localizedStringForKey(pair.first, "fr") == pair.second.c_str();
    });
  };
  if (cache.cachedLanguages().empty()) {
    return Table::none;
  }
  if (holds(kNew)) {
    return Table::whole;
  }
  return holds(kOld) && cache.localizedStringForKey("c", "fr") == "c" ? Table::old : Table::torn;
}

struct Walk {
  std::map<Table, int> left;
  int mayBeLost = 0;  // Updates that are in place but may not survive a loss of power.
};

// Runs one update for each of its operations and makes that operation fail. Ends with the update
// that has fewer operations.
Walk walk(const Fault& fault) {
  Walk walked;
  for (int failing = 0;; ++failing) {
    SCOPED_TRACE(failing);
    test::WatchedApplication app;
    app.update("fr", kOld);
    int operation = 0;
    const StringsUpdate update = app.update("fr", kNew, [&](std::string_view, std::string_view) {
      return operation++ == failing ? fault : Fault::none();
    });
    const Table left = tableOnDisk();
    ++walked.left[left];
    const bool isWritten = update.result == StringsUpdate::Result::written;
    EXPECT_EQ(isWritten, left == Table::whole) << "the report says what is on disk";
    EXPECT_EQ(app.log.back().starts_with("file "), isWritten);
    EXPECT_TRUE(isWritten || update.reason.isPresent());
    walked.mayBeLost += isWritten && update.reason.isPresent() ? 1 : 0;
    EXPECT_EQ(test::tablesBelow(app.cacheFolder()), 1U) << "a failed update cleans up";

    app.update("de", kNew);
    EXPECT_EQ(test::tablesBelow(app.cacheFolder()), 2U) << "the next update sweeps";
    if (operation <= failing) {
      EXPECT_TRUE(update.reason.isAbsent()) << update.reason;
      return walked;
    }
  }
}

TEST(FaultWalk, LeavesTheWholeOldTableOrTheWholeNewOne) {
  const struct {
    const char* name;
    Fault fault;
    int leastOld;
    int mostOld = 20;
  } rows[] = {{"disk full", Fault::fail(ENOSPC), 5},
              {"cut short at once", Fault::cutShort(1, EIO), 5},
              {"cut short late", Fault::cutShort(60, EIO), 5},
              // Missing items are tried once more, except for the caches directory.
              {"removed by another process", Fault::fail(ENOENT), 0, 1},
              {"locked by another process", Fault::fail(EAGAIN), 4}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Walk walked = walk(row.fault);
    EXPECT_EQ(walked.left[Table::torn] + walked.left[Table::none], 0);
    EXPECT_GE(walked.left[Table::old], row.leastOld);
    EXPECT_LE(walked.left[Table::old], row.mostOld);
    EXPECT_GT(walked.left[Table::whole], 3);
    EXPECT_EQ(walked.mayBeLost, 2) << "closing the file and syncing its folder";
  }
}

TEST(FaultWalk, SurvivesALossOfPower) {
  using Names = test::PowerLoss::Names;
  for (const Names names : {Names::lost, Names::kept}) {
    for (const bool hasOld : {true, false}) {
      bool isComplete = false;
      for (int last = 0; !isComplete; ++last) {
        SCOPED_TRACE(testing::Message() << "names " << (names == Names::lost ? "lost" : "kept")
                                        << ", old table " << hasOld << ", operation " << last);
        test::WatchedApplication app;
        test::PowerLoss power(app.caches().parent_path() / "stash");
        int operation = 0;
        const auto hook = [&](std::string_view name, std::string_view path) {
          if (operation++ > last) {
            return Fault::fail(EIO);
          }
          power.watch(name, path);
          return Fault::none();
        };
        if (hasOld) {
          app.update("fr", kOld);
        }
        app.update("fr", kNew, hook);
        isComplete = operation <= last;
        power.strike(app.caches().parent_path(), names);
        const Table left = tableOnDisk();
        EXPECT_NE(left, Table::torn);
        EXPECT_TRUE(left == Table::whole || (!isComplete && (left == Table::old) == hasOld));
      }
    }
  }
}

}  // namespace
}  // namespace orvanta
