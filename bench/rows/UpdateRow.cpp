// Putting one downloaded table in the place of the one that is cached, so that it would survive a
// loss of power.
#include <QSaveFile>
#include <algorithm>
#include <cstdio>
#include <string>

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

constexpr std::size_t kStrings = 10'000;

void require(bool holds, const char* what) {
  if (!holds) {
    throw std::runtime_error(what);
  }
}

// What the standard floor of safe replacing is: a new file, its bytes on the disk, its name over
// the old one, the name on the disk.
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

Contender updateFloor(const std::filesystem::path& folder, const std::string& bytes) {
  const std::string target = (folder / "Localizable.strings").string();
  std::filesystem::create_directories(folder);
  const auto round = [folder = folder.string(), target, &bytes] {
    replaceFile(folder, target, bytes);
  };
  const auto check = [round, target, &bytes] {
    round();
    expectBytes(target, bytes);
  };
  return {std::string(kFloor), check, round};
}

Contender updateQt(const std::filesystem::path& folder, const std::string& bytes) {
  const std::string target = (folder / "Localizable.strings").string();
  std::filesystem::create_directories(folder);
  const auto round = [target, &bytes] {
    QSaveFile file(QString::fromStdString(target));
    require(file.open(QIODevice::WriteOnly) &&
                file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0 && file.commit(),
            "QSaveFile fails");
  };
  const auto check = [round, target, &bytes] {
    round();
    expectBytes(target, bytes);
  };
  return {"qt", check, round};
}

StringsPayload makePayload(const Table& table) {
  StringsPayload texts;
  for (const auto& [key, value] : table) {
    texts.add(key, String(value));
  }
  StringsPayload data;
  data.add("zantorData"_s, std::move(texts));
  StringsPayload name;
  name.add("main"_s, std::move(data));
  StringsPayload language;
  language.add("app"_s, std::move(name));
  StringsPayload payload;
  payload.add("fr"_s, std::move(language));
  return payload;
}

Contender updateOurs(const Application& application, const StringsPayload& payload,
                     const std::string& bytes) {
  const auto cache = std::make_shared<OVStringCache>();
  const auto round = [cache, &payload] { cache->updateStrings(payload, "main"_s, "app"_s); };
  const auto check = [round, &application, &bytes] {
    round();
    expectBytes(
        application.cachesFolder() / "OrvantaLocalizations" / "fr.lproj" / "Localizable.strings",
        bytes);
  };
  return {std::string(kOurs), check, round};
}

}  // namespace

void updateRow(Bench& bench) {
  const ScratchFolder folder = bench.folder("update");
  Table table = makeTable(languageNamed("fr"), makeKeys(kStrings));
  for (Entry& entry : table) {
    // A downloaded value is source text, which is written as it is.
    std::replace(entry.value.begin(), entry.value.end(), '\n', ' ');
  }
  const Application application(folder.path());
  application.ship("en", makeTable(languageNamed("en"), makeKeys(1)), textFormUtf8);
  platform::Platform::install(application.makePlatform("en"));
  const StringsPayload payload = makePayload(table);
  const std::string bytes = textFormUtf16(table);
  // What other rows wrote is not to be on its way to the disk meanwhile.
  sync();
  bench.run({.name = "update",
             .samples = 31,
             .goal = 1.2,
             .contenders = {updateFloor(folder.path() / "floor", bytes),
                            updateOurs(application, payload, bytes),
                            updateQt(folder.path() / "qt", bytes)}});
}

}  // namespace orvanta::bench
