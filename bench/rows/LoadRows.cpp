// Reading one language's table from the page cache: the mean of four scripts, because the cost
// depends on script and encoding. Freed memory is returned to the system before each load, as it is
// when an application reads its first table.
#include <map>

#include <malloc.h>

#include "contenders/Application.h"
#include "contenders/Icu.h"
#include "contenders/QtTranslations.h"
#include "contenders/TsvMap.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/LoadedLanguages.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

// Through the bundle, like the first look-up of an application: finds the file, reads it, builds
// the table.
Contender loadOurs(const Application& application, const LoadedTables& tables) {
  struct State {
    platform::Platform platform;
    std::vector<std::shared_ptr<platform::Bundle>> bundles;
  };
  const auto state = std::make_shared<State>();
  const auto prepare = [state, &application, &tables] {
    state->bundles.clear();
    state->platform = application.makePlatform("en");
    for (const auto& [language, table] : tables) {
      state->bundles.push_back(state->platform.bundles->bundleWithPath(
          String(application.languageFolder(language).string())));
    }
    malloc_trim(0);
  };
  const auto round = [state, &tables] {
    const HashedKey key(tables.front().table.front().key);
    for (const auto& bundle : state->bundles) {
      keep(bundle->textForKey(key, {}));
    }
  };
  const auto check = [prepare, state, &tables] {
    prepare();
    for (std::size_t at = 0; at < tables.size(); ++at) {
      for (const auto& [key, value] : tables[at].table) {
        expectText(state->bundles[at]->textForKey(HashedKey(key), {}).view(), value, key);
      }
    }
  };
  return {std::string(kOurs), check, round, prepare};
}

Contender loadFloor(const std::filesystem::path& folder, const LoadedTables& tables) {
  const auto maps = std::make_shared<std::vector<TsvMap>>(tables.size());
  std::vector<std::filesystem::path> files;
  for (const auto& [language, table] : tables) {
    files.push_back(folder / (std::string(language) + ".tsv"));
    writeFile(files.back(), tabSeparated(table));
  }
  const auto prepare = [maps] {
    for (TsvMap& map : *maps) {
      map = TsvMap();
    }
    malloc_trim(0);
  };
  const auto round = [maps, files] {
    for (std::size_t at = 0; at < files.size(); ++at) {
      (*maps)[at] = loadTsv(files[at]);
    }
  };
  const auto check = [maps, round, &tables] {
    round();
    for (std::size_t at = 0; at < tables.size(); ++at) {
      expect((*maps)[at].size() == tables[at].table.size(), "another number of entries");
      for (const auto& [key, value] : tables[at].table) {
        expectText((*maps)[at].at(key), value, key);
      }
    }
  };
  return {std::string(kFloor), check, round, prepare};
}

// ICU caches what it opened by path, so each round spells the folder differently.
Contender loadIcu(const std::filesystem::path& folder, const LoadedTables& tables) {
  const auto spelling = std::make_shared<std::string>(folder.string());
  std::vector<std::string> locales;
  for (const auto& [language, table] : tables) {
    locales.push_back(icuLocale(language));
    icu::makeBundle(folder, locales.back(), table);
  }
  const auto readAll = [](UResourceBundle* bundle, const auto& visit) {
    UErrorCode status = U_ZERO_ERROR;
    while (ures_hasNext(bundle) != 0) {
      const char* key = nullptr;
      std::int32_t length = 0;
      const UChar* text = ures_getNextString(bundle, &length, &key, &status);
      visit(key, std::u16string_view(text, static_cast<std::size_t>(length)));
    }
    expect(U_SUCCESS(status) != 0, "a string cannot be read");
  };
  const auto prepare = [spelling] {
    *spelling += "/.";
    malloc_trim(0);
  };
  const auto round = [spelling, locales, readAll] {
    for (const std::string& locale : locales) {
      const icu::Bundle bundle = icu::open(*spelling, locale.c_str());
      std::size_t units = 0;
      readAll(bundle.get(), [&](const char*, std::u16string_view text) { units += text.size(); });
      keep(units);
    }
  };
  const auto check = [spelling, locales, readAll, &tables] {
    for (std::size_t at = 0; at < tables.size(); ++at) {
      std::map<std::string, std::string> read;
      const icu::Bundle bundle = icu::open(*spelling, locales[at].c_str());
      readAll(bundle.get(), [&](const char* key, std::u16string_view text) {
        read.emplace(key, icu::utf8(text));
      });
      expect(read.size() == tables[at].table.size(), "another number of entries");
      for (const auto& [key, value] : tables[at].table) {
        expectText(read.at(key), value, key);
      }
    }
  };
  return {"icu", check, round, prepare};
}

Contender loadQt(const std::filesystem::path& folder, const LoadedTables& tables) {
  std::vector<std::filesystem::path> files;
  for (const auto& [language, table] : tables) {
    files.push_back(folder / (std::string(language) + ".qm"));
    qt::makeTranslations(files.back(), table);
  }
  const auto round = [files, &tables] {
    for (std::size_t at = 0; at < files.size(); ++at) {
      const auto translator = qt::open(files[at]);
      qsizetype units = 0;
      for (const Entry& entry : tables[at].table) {
        units += qt::find(*translator, entry.key.c_str()).size();
      }
      keep(units);
    }
  };
  const auto check = [files, &tables] {
    for (std::size_t at = 0; at < files.size(); ++at) {
      const auto translator = qt::open(files[at]);
      for (const auto& [key, value] : tables[at].table) {
        expectText(qt::find(*translator, key.c_str()).toStdString(), value, key);
      }
    }
  };
  return {"qt", check, round, [] { malloc_trim(0); }};
}

struct Loading {
  const char* name;
  TableForm form;
  std::size_t strings = 10'000;
  std::optional<double> goal = {};
  bool hasPeers = false;
};

void loadRow(Bench& bench, const Loading& loading) {
  const ScratchFolder folder = bench.folder(loading.name);
  const LoadedTables tables = makeLoadedTables(loading.strings);
  const Application application(folder.path());
  std::size_t bytes = 0;
  for (const auto& [language, table] : tables) {
    application.ship(language, table, loading.form);
    bytes += std::filesystem::file_size(application.tableFile(language));
  }
  Row row{.name = loading.name, .operations = tables.size(), .samples = 41, .goal = loading.goal};
  row.amount = Amount{static_cast<double>(bytes) / static_cast<double>(tables.size()) / 1000, "kB"};
  row.contenders = {loadFloor(folder.path(), tables), loadOurs(application, tables)};
  if (loading.hasPeers) {
    row.contenders.push_back(loadIcu(folder.path() / "icu", tables));
    row.contenders.push_back(loadQt(folder.path(), tables));
  }
  bench.run(row);
}

}  // namespace

void loadRows(Bench& bench) {
  for (const Loading& loading : {
           Loading{.name = "load-utf16", .form = textFormUtf16, .goal = 0.85, .hasPeers = true},
           Loading{.name = "load-utf8", .form = textFormUtf8, .goal = 0.5},
           Loading{.name = "load-binary", .form = binaryPropertyList, .goal = 0.7},
           Loading{.name = "load-5k", .form = textFormUtf16, .strings = 5'000, .goal = 0.85},
           Loading{.name = "load-5k-utf8", .form = textFormUtf8, .strings = 5'000, .goal = 0.6},
           Loading{.name = "load-2500", .form = textFormUtf16, .strings = 2'500, .goal = 0.85},
           Loading{.name = "load-2500-utf8", .form = textFormUtf8, .strings = 2'500, .goal = 0.6},
           Loading{.name = "load-1k", .form = textFormUtf16, .strings = 1'000, .goal = 0.85},
           Loading{.name = "load-1k-utf8", .form = textFormUtf8, .strings = 1'000, .goal = 0.6},
           Loading{.name = "load-500", .form = textFormUtf16, .strings = 500, .goal = 0.85},
           Loading{.name = "load-500-utf8", .form = textFormUtf8, .strings = 500, .goal = 0.6},
       }) {
    if (bench.isWanted(loading.name)) {
      loadRow(bench, loading);
    }
  }
}

}  // namespace orvanta::bench
