// The memory of a loaded table: heap, and the pages of files that stay mapped. The mean of four
// tables in four scripts.
#include <fstream>
#include <functional>
#include <iostream>

#include <libintl.h>

#include "contenders/Application.h"
#include "contenders/Gettext.h"
#include "contenders/Icu.h"
#include "contenders/QtTranslations.h"
#include "contenders/TsvMap.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "harness/Heap.h"
#include "rows/LoadedLanguages.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

// The size of all mappings of files below the folder.
std::size_t mappedBytes(const std::filesystem::path& folder) {
  std::ifstream maps("/proc/self/maps");
  std::size_t bytes = 0;
  for (std::string line; std::getline(maps, line);) {
    if (line.find(folder.string()) != std::string::npos) {
      std::size_t used = 0;
      const std::size_t start = std::stoul(line, &used, 16);
      bytes += std::stoul(line.substr(used + 1), nullptr, 16) - start;
    }
  }
  return bytes;
}

// Loads something and returns the memory that it keeps. `load` returns its owner.
template <typename Load>
double keptBytes(const std::filesystem::path& folder, Load load) {
  const std::size_t mappedBefore = mappedBytes(folder);
  heap::startCounting();
  const auto loaded = load();
  const std::int64_t heapBytes = heap::stopCounting().keptBytes;
  keep(loaded);
  return static_cast<double>(heapBytes) + static_cast<double>(mappedBytes(folder) - mappedBefore);
}

double keptByOurs(const Application& application, const LoadedTable& loaded) {
  const platform::Platform platform = application.makePlatform("en");
  auto bundle = platform.bundles->bundleWithPath(
      String(application.languageFolder(loaded.language).string()));
  const Entry& first = loaded.table.front();
  const HashedKey hashed(first.key);
  return keptBytes(application.languageFolder(loaded.language), [&] {
    expectText(bundle->textForKey(hashed, {}).view(), first.value, first.key);
    return bundle;
  });
}

double keptByMap(const std::filesystem::path& folder, const LoadedTable& loaded) {
  const auto file = folder / "table.tsv";
  writeFile(file, tabSeparated(loaded.table));
  return keptBytes(folder, [&] { return loadTsv(file); });
}

double keptByQt(const std::filesystem::path& folder, const LoadedTable& loaded) {
  const auto file = folder / (std::string(loaded.language) + ".qm");
  qt::makeTranslations(file, loaded.table);
  const Entry& first = loaded.table.front();
  return keptBytes(folder, [&] {
    auto translator = qt::open(file);
    expectText(qt::find(*translator, first.key.c_str()).toStdString(), first.value, first.key);
    return translator;
  });
}

double keptByIcu(const std::filesystem::path& folder, const LoadedTable& loaded) {
  const std::string locale = icuLocale(loaded.language);
  icu::makeBundle(folder, locale, loaded.table);
  const Entry& first = loaded.table.front();
  return keptBytes(folder, [&] {
    auto bundle = icu::open(folder, locale.c_str());
    expectText(icu::utf8(icu::find(bundle.get(), first.key.c_str())), first.value, first.key);
    return bundle;
  });
}

void memoryRow(Bench& bench, const char* name, std::size_t strings) {
  if (!bench.isWanted(name)) {
    return;
  }
  std::clog << name << "..." << std::endl;
  const ScratchFolder folder = bench.folder(name);
  const Application application(folder.path());
  std::vector<Measurement> measurements;
  const auto add = [&](std::string_view contender, double bytes) {
    const auto found =
        std::find_if(measurements.begin(), measurements.end(),
                     [&](const auto& known) { return known.contender == contender; });
    Measurement& measurement =
        found == measurements.end()
            ? measurements.emplace_back(Measurement{.contender = std::string(contender)})
            : *found;
    measurement.bytes += bytes / static_cast<double>(kLoadedLanguages.size());
  };
  for (const LoadedTable& loaded : makeLoadedTables(strings)) {
    application.ship(loaded.language, loaded.table, textFormUtf16);
    add(kFloor, static_cast<double>(textBytes(loaded.table)));
    add(kOurs, keptByOurs(application, loaded));
    add("unordered_map", keptByMap(folder.path(), loaded));
    add("icu", keptByIcu(folder.path() / "icu", loaded));
    add("qt", keptByQt(folder.path(), loaded));
  }
  bench.report().add({.name = name, .goal = 1.3}, std::move(measurements));
}

}  // namespace

void memoryRows(Bench& bench) {
  memoryRow(bench, "memory", 10'000);
  memoryRow(bench, "memory-2500", 2'500);
  memoryRow(bench, "memory-500", 500);
}

}  // namespace orvanta::bench
