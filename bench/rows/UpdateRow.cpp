// Replacing cached tables by downloaded ones, durably: a loss of power loses nothing.
#include <QSaveFile>
#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <orvanta/cache/OVStringCache.h>

#include "contenders/Application.h"
#include "data/TableForms.h"
#include "data/Utf16.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr const char* kTableFile = "Localizable.strings";

void require(bool holds, const char* what) {
  if (!holds) {
    throw std::runtime_error(what);
  }
}

// The floor: the usual durable replacement of a file, which is to write a new file, sync it, rename
// it over the old one, and sync the folder.
void replaceFile(const std::string& folder, const std::string& target, std::string_view bytes) {
  const std::string temporary = target + ".new";
  const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  require(file >= 0, "cannot make a file");
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    require(written > 0, "cannot write");
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  require(fsync(file) == 0 && close(file) == 0, "cannot sync a file");
  require(std::rename(temporary.c_str(), target.c_str()) == 0, "cannot rename a file");
  const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  require(directory >= 0 && fsync(directory) == 0 && close(directory) == 0, "cannot sync a folder");
}

void expectBytes(const std::filesystem::path& file, const std::string& bytes) {
  expect(readFile(file) == bytes, "the file holds something else");
}

// One language's table and the bytes of its file.
struct Download {
  std::string language;
  Table table;
  std::string bytes;
};
using Downloads = std::vector<Download>;

// The first shipped languages, then regional variants of them.
Downloads makeDownloads(std::size_t languages, std::size_t strings) {
  const auto keys = makeKeys(strings);
  const auto known = shippedLanguages();
  Downloads downloads;
  for (std::size_t number = 0; number < languages; ++number) {
    const Language& language = known[number % known.size()];
    std::string name(language.name);
    if (number >= known.size()) {
      name += "-" + std::to_string(number / known.size());
    }
    Table table = makeTable(language, keys);
    for (Entry& entry : table) {
      // A downloaded value is source text of the format, written without escaping.
      std::replace(entry.value.begin(), entry.value.end(), '\n', ' ');
    }
    std::string bytes = textFormUtf16(table);
    downloads.push_back({std::move(name), std::move(table), std::move(bytes)});
  }
  return downloads;
}

std::filesystem::path languageFolder(const std::filesystem::path& folder,
                                     const Download& download) {
  return folder / (download.language + ".lproj");
}

// `replace` replaces the contents of a file in a folder.
template <typename Replace>
Contender updateEach(std::string_view name, const std::filesystem::path& folder,
                     const Downloads& downloads, Replace replace) {
  for (const Download& download : downloads) {
    std::filesystem::create_directories(languageFolder(folder, download));
  }
  const auto round = [folder, &downloads, replace] {
    for (const Download& download : downloads) {
      const std::filesystem::path target = languageFolder(folder, download);
      replace(target.string(), (target / kTableFile).string(), download.bytes);
    }
  };
  const auto check = [round, folder, &downloads] {
    round();
    for (const Download& download : downloads) {
      expectBytes(languageFolder(folder, download) / kTableFile, download.bytes);
    }
  };
  return {std::string(name), check, round};
}

void replaceWithQt(const std::string& /*folder*/, const std::string& target,
                   std::string_view bytes) {
  QSaveFile file(QString::fromStdString(target));
  require(file.open(QIODevice::WriteOnly) &&
              file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0 && file.commit(),
          "QSaveFile fails");
}

// A value inside nested dictionaries; the outermost key first.
StringsPayload nested(std::initializer_list<const char*> keys, StringsPayload value) {
  for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) {
    StringsPayload around;
    around.add(*key, std::move(value));
    value = std::move(around);
  }
  return value;
}

StringsPayload makePayload(const Downloads& downloads) {
  StringsPayload payload;
  for (const Download& download : downloads) {
    StringsPayload texts;
    for (const auto& [key, value] : download.table) {
      texts.add(key, String(value));
    }
    payload.add(download.language, nested({"app", "main", "zantorData"}, std::move(texts)));
  }
  return payload;
}

Contender updateOurs(const Application& application, const Downloads& downloads) {
  const auto cache = std::make_shared<OVStringCache>();
  const auto round = [cache, payload = makePayload(downloads)] {
    cache->updateStrings(payload, "main"_s, "app"_s);
  };
  const auto check = [round, &application, &downloads] {
    round();
    for (const Download& download : downloads) {
      expectBytes(languageFolder(application.cachesFolder() / "OrvantaLocalizations", download) /
                      kTableFile,
                  download.bytes);
    }
  };
  return {std::string(kOurs), check, round};
}

struct Update {
  const char* name;
  std::size_t languages;
  std::size_t strings;
  int samples;
  double goal;
  bool hasPeer = true;
};

void updateRow(Bench& bench, const Update& update) {
  const ScratchFolder folder = bench.folder(update.name);
  const Downloads downloads = makeDownloads(update.languages, update.strings);
  const Application application(folder.path());
  application.ship("en", makeTable(languageNamed("en"), makeKeys(1)), textFormUtf8);
  platform::Platform::install(application.makePlatform("en"));
  Row row{.name = update.name, .samples = update.samples, .goal = update.goal};
  row.amount = Amount{static_cast<double>(update.languages), "languages"};
  row.contenders = {updateEach(kFloor, folder.path() / "floor", downloads, replaceFile),
                    updateOurs(application, downloads)};
  if (update.hasPeer) {
    row.contenders.push_back(updateEach("qt", folder.path() / "qt", downloads, replaceWithQt));
  }
  // The data of earlier rows must not be written to the disk meanwhile.
  sync();
  bench.run(std::move(row));
}

}  // namespace

void updateRows(Bench& bench) {
  for (const Update& update :
       {Update{"update", 1, 10'000, 31, 1.25}, Update{"update-40", 40, 10'000, 7, 2.0},
        Update{"update-2000", 2'000, 50, 3, 1.3, false}}) {
    if (bench.isWanted(update.name)) {
      updateRow(bench, update);
    }
  }
}

}  // namespace orvanta::bench
