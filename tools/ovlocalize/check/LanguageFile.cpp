#include "LanguageFile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/strings/reader/StringTableReader.h>

#include "../Escaping.h"
#include "../FileContents.h"

namespace ovlocalize {

namespace {

namespace fs = std::filesystem;
using orvanta::strings::TableProblem;
using orvanta::strings::TableStatement;

constexpr std::string_view kExtension = ".lproj";
constexpr std::string_view kTable = "Localizable.strings";

void addProblem(LanguageFile& file, const TableProblem& problem) {
  const bool isStatement = problem.kind == TableProblem::Kind::statement;
  file.addAt(isStatement ? rules::kStatement : rules::kCharacters, {problem.line, problem.column},
             "", problem.message);
}

void addStatement(LanguageFile& file, const TableStatement& statement) {
  const LanguageFile::Place place = {statement.line, statement.column};
  const auto [known, isNew] = file.places.try_emplace(statement.key, place);
  if (!isNew) {
    file.addAt(rules::kRepeated, place, statement.key,
               known->second.line == 0
                   ? "stands here twice"
                   : "stands here again, after line " + std::to_string(known->second.line));
    known->second = place;
  }
}

void read(LanguageFile& file) {
  std::string bytes;
  try {
    bytes = contentsOf(file.file);
  } catch (const Failure& failure) {
    file.addAt(rules::kStatement, {}, "", failure.what());
    return;
  }
  file.table = orvanta::strings::readStringTable(
      bytes, [&](const TableProblem& problem) { addProblem(file, problem); },
      [&](const TableStatement& statement) { addStatement(file, statement); });
}

LanguageFolder readFolder(const std::string& path, bool isDownloaded) {
  LanguageFolder folder{path, isDownloaded, {}, {}};
  std::error_code error;
  for (fs::directory_iterator entry(path, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    std::error_code ignored;
    if (name.ends_with(kExtension) && entry->is_directory(ignored)) {
      folder.names.push_back(name.substr(0, name.size() - kExtension.size()));
    }
  }
  if (error) {
    throw Failure("cannot read the folder " + path + ": " + error.message());
  }
  std::sort(folder.names.begin(), folder.names.end());
  for (const std::string& name : folder.names) {
    const fs::path file = fs::path(path) / (name + std::string(kExtension)) / kTable;
    std::error_code ignored;
    if (fs::exists(file, ignored)) {
      LanguageFile& language = folder.files.emplace_back();
      language.language = name;
      language.isDownloaded = isDownloaded;
      language.file = file.string();
      read(language);
    }
  }
  return folder;
}

}  // namespace

void LanguageFile::add(const Rule& rule, std::string_view key, std::string message) {
  const auto place = places.find(std::string(key));
  addAt(rule, place == places.end() ? Place{} : place->second, key, std::move(message));
}

void LanguageFile::addAt(const Rule& rule, Place place, std::string_view key, std::string message) {
  // A hostile file can hold millions of them.
  constexpr std::size_t kMost = 100'000;
  if (findings.size() == kMost) {
    isComplete = false;
    return;
  }
  findings.push_back({&rule, file, place.line, place.column, std::string(key), std::move(message)});
}

std::string_view LanguageFile::text(std::string_view key) const {
  return table == nullptr ? std::string_view() : table->find(orvanta::HashedKey(key));
}

bool LanguageFile::has(std::string_view key) const {
  return text(key).data() != nullptr;
}

LanguageFile* LanguageFolder::find(std::string_view language) {
  const auto found = std::find_if(files.begin(), files.end(), [&](const LanguageFile& file) {
    return file.language == language;
  });
  return found == files.end() ? nullptr : &*found;
}

std::vector<LanguageFolder> readLanguageFolders(const Settings& settings) {
  installPlatform(settings);
  // As it was given: findings name files as a compiler does.
  std::string bundle = settings.bundle;
  if (bundle.empty()) {
    bundle = orvanta::platform::Platform::current().bundles->mainBundle()->bundlePath().str();
  }
  std::vector<LanguageFolder> folders;
  folders.push_back(readFolder(bundle, false));
  const fs::path cache = fs::path(settings.cache) / orvanta::cacheDirectoryName;
  std::error_code ignored;
  if (!settings.cache.empty() && !fs::is_directory(settings.cache, ignored)) {
    throw Failure("no such caches folder: " + settings.cache);
  }
  if (!settings.cache.empty() && fs::exists(cache, ignored)) {
    folders.push_back(readFolder(cache.string(), true));
  }
  return folders;
}

}  // namespace ovlocalize
