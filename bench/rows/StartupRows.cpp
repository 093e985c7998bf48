// From nothing to an application that knows its 40 languages and has chosen one.
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <orvanta/locale/Localizer.h>

#include "contenders/Application.h"
#include "contenders/ReleasableBundles.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kBuffer = std::size_t{256} * 1024;

Table makeConfiguration(const Language& language) {
  const std::string name(language.name);
  return {{std::string(OVOrvantaLanguageVersionKey), "17"},
          {std::string(OVOrvantaLanguageAppleIDKey), name},
          {std::string(OVOrvantaLanguageEquivalentsKey), name + "," + name + "-XX"}};
}

// Ours: the platform, the localizer, and with it the catalogue of all languages.
class OurStart {
 public:
  OurStart(const Application& application, bool isConfigured)
      : application_(application), isConfigured_(isConfigured) {}

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
    for (const Language& language : shippedLanguages()) {
      const auto* locale = languages.find(language.name);
      expect(locale != nullptr, "a language is missing");
      expectText((*locale)->orvantaLocaleName().view(), language.name, "its name");
      expectText((*locale)->appleLocaleName().view(), language.name, "its identifier");
      expectText((*locale)->version().view(),
                 isConfigured_ ? std::string_view("17") : OVOrvantaLanguageVersionKey, "version");
      expect((*locale)->fallbackLocales().size() == (isConfigured_ ? 2 : 0), "its equivalents");
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
  bool isConfigured_;
  std::shared_ptr<ReleasableBundles> bundles_;
  std::unique_ptr<Localizer> localizer_;
};

Contender startOurs(const Application& application, bool isConfigured) {
  const auto start = std::make_shared<OurStart>(application, isConfigured);
  return {std::string(kOurs), [start] { start->check(); }, [start] { start->start(); },
          [start] { start->forget(); }};
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

struct Start {
  const char* name;
  TableForm form = textFormUtf16;
  std::size_t strings = 10'000;
  bool isConfigured = false;
  std::optional<double> goal = {};
};

void startupRow(Bench& bench, const Start& start) {
  const ScratchFolder folder = bench.folder(start.name);
  const Application application(folder.path());
  const auto keys = makeKeys(start.strings);
  std::size_t bytes = 0;
  for (const Language& language : shippedLanguages()) {
    Table table = makeTable(language, keys);
    if (start.isConfigured) {
      const Table configuration = makeConfiguration(language);
      table.insert(table.begin(), configuration.begin(), configuration.end());
    }
    application.ship(language.name, table, start.form);
    bytes += std::filesystem::file_size(application.tableFile(language.name));
  }
  Row row{.name = start.name, .samples = 15, .warmUp = true, .goal = start.goal};
  row.amount = Amount{static_cast<double>(bytes) / 1000, "kB"};
  row.contenders = {readAllFiles(application), startOurs(application, start.isConfigured)};
  bench.run(row);
}

}  // namespace

void startupRows(Bench& bench) {
  for (const Start& start : {
           Start{.name = "startup", .goal = 1.5},
           Start{.name = "startup-half", .strings = 5'000},
           Start{.name = "startup-quarter", .strings = 2'500},
           Start{.name = "startup-configured", .isConfigured = true},
           Start{.name = "startup-utf8", .form = textFormUtf8},
           Start{.name = "startup-binary", .form = binaryPropertyList},
       }) {
    startupRow(bench, start);
  }
}

}  // namespace orvanta::bench
