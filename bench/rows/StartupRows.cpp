// Startup of an application: listing its 40 languages and choosing one. In the rows
// startup-configured each table has configuration entries, which are read as well.
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <orvanta/locale/Localizer.h>

#include "contenders/Application.h"
#include "contenders/ReleasableBundles.h"
#include "data/Configuration.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kBuffer = std::size_t{256} * 1024;

// The position of the three configuration entries in the tables.
enum class Entries { none, first, last, firstInSome };

bool isConfigured(Entries entries, std::size_t language) {
  return entries == Entries::firstInSome ? language % 10 == 3 : entries != Entries::none;
}

// Our contender: the platform, the localizer, and the catalogue of all languages.
class OurStart {
 public:
  OurStart(const Application& application, Entries entries)
      : application_(application), entries_(entries) {}

  void startAndReadRecords() {
    start();
    for (const auto& [name, locale] : localizer_->stringCache().availableLanguages()) {
      keep(locale->version());
    }
  }

  void start() {
    platform::Platform platform = application_.makePlatform("fr");
    bundles_ = std::make_shared<ReleasableBundles>(std::move(platform.bundles));
    platform.bundles = bundles_;
    platform::Platform::install(std::move(platform));
    localizer_ = std::make_unique<Localizer>();
  }

  void check() {
    forget();
    start();
    const OVLocaleDictionary languages = localizer_->stringCache().availableLanguages();
    expect(languages.size() == shippedLanguages().size(), "another number of languages");
    for (std::size_t number = 0; number < shippedLanguages().size(); ++number) {
      const Language& language = shippedLanguages()[number];
      const bool hasEntries = isConfigured(entries_, number);
      const auto* locale = languages.find(language.name);
      expect(locale != nullptr, "a language is missing");
      expectText((*locale)->orvantaLocaleName().view(), language.name, "its name");
      expectText((*locale)->appleLocaleName().view(), language.name, "its identifier");
      expectText((*locale)->version().view(),
                 hasEntries ? std::string_view("17") : OVOrvantaLanguageVersionKey, "version");
      expect((*locale)->fallbackLocales().size() == (hasEntries ? 2 : 0), "its equivalents");
    }
    expectText(localizer_->currentLocalesString().view(), "fr", "the current language");
  }

  void forget() {
    localizer_ = nullptr;
    if (bundles_ != nullptr) {
      bundles_->release();
    }
  }

 private:
  const Application& application_;
  Entries entries_;
  std::shared_ptr<ReleasableBundles> bundles_;
  std::unique_ptr<Localizer> localizer_;
};

Contender startOurs(const Application& application, Entries entries) {
  const auto start = std::make_shared<OurStart>(application, entries);
  const auto round = [start, readsRecords = entries != Entries::none] {
    readsRecords ? start->startAndReadRecords() : start->start();
  };
  return {std::string(kOurs), [start] { start->check(); }, round, [start] { start->forget(); }};
}

std::size_t readThrough(const std::string& path, char* buffer) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  std::size_t bytes = 0;
  for (ssize_t more = 1; more > 0;) {
    more = read(file, buffer, kBuffer);
    bytes += more > 0 ? static_cast<std::size_t>(more) : 0;
  }
  close(file);
  return bytes;
}

Contender readAllFiles(const Application& application) {
  std::vector<std::string> files;
  std::size_t size = 0;
  for (const Language& language : shippedLanguages()) {
    files.push_back(application.tableFile(language.name).string());
    size += std::filesystem::file_size(files.back());
  }
  const std::shared_ptr<char[]> buffer(new char[kBuffer]);
  const auto round = [files, buffer] {
    for (const std::string& file : files) {
      keep(readThrough(file, buffer.get()));
    }
  };
  const auto check = [files, buffer, size] {
    std::size_t bytes = 0;
    for (const std::string& file : files) {
      bytes += readThrough(file, buffer.get());
    }
    expect(bytes == size, "not all bytes were read");
  };
  return {std::string(kFloor), check, round};
}

// The tables of all languages, shared by the rows of one size.
class Tables {
 public:
  [[nodiscard]] const std::vector<Table>& ofSize(std::size_t strings) {
    if (strings != strings_) {
      tables_.clear();
      const auto keys = makeKeys(strings);
      for (const Language& language : shippedLanguages()) {
        tables_.push_back(makeTable(language, keys));
      }
      strings_ = strings;
    }
    return tables_;
  }

 private:
  std::size_t strings_ = 0;
  std::vector<Table> tables_;
};

struct Start {
  const char* name;
  TableForm form = textFormUtf16;
  std::size_t strings = 10'000;
  Entries entries = Entries::none;
  std::optional<double> goal = {};
};

Table withEntries(Table table, const Start& start, std::size_t language) {
  if (isConfigured(start.entries, language)) {
    const Table configuration = makeConfiguration(shippedLanguages()[language]);
    table.insert(start.entries == Entries::last ? table.end() : table.begin(),
                 configuration.begin(), configuration.end());
  }
  return table;
}

void startupRow(Bench& bench, const Start& start, Tables& tables) {
  const ScratchFolder folder = bench.folder(start.name);
  const Application application(folder.path());
  std::size_t bytes = 0;
  for (std::size_t number = 0; number < shippedLanguages().size(); ++number) {
    const std::string_view name = shippedLanguages()[number].name;
    application.ship(name, withEntries(tables.ofSize(start.strings)[number], start, number),
                     start.form);
    bytes += std::filesystem::file_size(application.tableFile(name));
  }
  Row row{.name = start.name, .samples = 15, .warmUp = true, .goal = start.goal};
  row.amount = Amount{static_cast<double>(bytes) / 1000, "kB"};
  row.contenders = {readAllFiles(application), startOurs(application, start.entries)};
  bench.run(std::move(row));
}

constexpr Start kStarts[] = {
    {.name = "startup", .goal = 1.5},
    {.name = "startup-utf8", .form = textFormUtf8},
    {.name = "startup-binary", .form = binaryPropertyList},
    {.name = "startup-configured-first", .entries = Entries::first, .goal = 2.0},
    {.name = "startup-configured-first-utf8",
     .form = textFormUtf8,
     .entries = Entries::first,
     .goal = 2.0},
    {.name = "startup-configured-first-binary",
     .form = binaryPropertyList,
     .entries = Entries::first,
     .goal = 2.0},
    {.name = "startup-configured-last", .entries = Entries::last, .goal = 4.0},
    {.name = "startup-configured-last-utf8",
     .form = textFormUtf8,
     .entries = Entries::last,
     .goal = 4.0},
    {.name = "startup-configured-last-binary",
     .form = binaryPropertyList,
     .entries = Entries::last,
     .goal = 4.0},
    {.name = "startup-configured-some", .entries = Entries::firstInSome, .goal = 1.9},
    {.name = "startup-configured-some-utf8",
     .form = textFormUtf8,
     .entries = Entries::firstInSome,
     .goal = 1.9},
    {.name = "startup-configured-some-binary",
     .form = binaryPropertyList,
     .entries = Entries::firstInSome,
     .goal = 1.9},
    {.name = "startup-half", .strings = 5'000},
    {.name = "startup-quarter", .strings = 2'500},
    {.name = "startup-1k", .strings = 1'000},
    {.name = "startup-configured-first-1k",
     .strings = 1'000,
     .entries = Entries::first,
     .goal = 2.0},
    {.name = "startup-configured-last-1k", .strings = 1'000, .entries = Entries::last, .goal = 4.0},
    {.name = "startup-configured-some-1k",
     .strings = 1'000,
     .entries = Entries::firstInSome,
     .goal = 1.9},
};

}  // namespace

void startupRows(Bench& bench) {
  Tables tables;
  for (const Start& start : kStarts) {
    if (bench.isWanted(start.name)) {
      startupRow(bench, start, tables);
    }
  }
}

}  // namespace orvanta::bench
