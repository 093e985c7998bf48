#include <iostream>
#include <sstream>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>

#include "Commands.h"
#include "Escaping.h"
#include "FileContents.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

namespace {

using orvanta::strings::StringTable;
using orvanta::strings::TableProblem;

std::string fileOf(const Settings& settings, const Source& source) {
  if (source.language.empty()) {
    return source.file;
  }
  installPlatform(settings);
  const auto bundle =
      orvanta::Localizer::sharedLocalizer().stringCache().bundleForLanguage(source.language);
  const orvanta::String path =
      bundle == nullptr ? orvanta::String() : bundle->pathForResource("Localizable", "strings");
  if (path.isAbsent()) {
    throw Failure("no table for the language " + source.language);
  }
  return path.str();
}

// The problems of a table as they are reported, of which only the first are kept.
class Problems {
 public:
  void add(const TableProblem& problem) {
    ++count_;
    if (first_.size() < kShown) {
      first_.push_back(problem);
    }
  }

  void print(const std::string& file) const {
    std::ostringstream lines;
    for (const TableProblem& problem : first_) {
      lines << escaped(file) << ':' << problem.line << ':' << problem.column << ": "
            << escaped(problem.message) << '\n';
    }
    if (count_ > first_.size()) {
      lines << escaped(file) << ": " << count_ - first_.size() << " further problems\n";
    }
    std::cerr << lines.str();
  }

 private:
  static constexpr std::size_t kShown = 1000;

  std::vector<TableProblem> first_;
  std::size_t count_ = 0;
};

void printJson(const StringTable& table) {
  Json object = Json::object();
  // Not through the object's operator[], which looks for the key among all that came before.
  auto& entries = object.get_ref<Json::object_t&>();
  for (const auto& [key, value] : table.entries()) {
    entries.Container::emplace_back(std::string(key), std::string(value));
  }
  std::cout << printed(object) << '\n';
}

void printLines(const StringTable& table) {
  for (const auto& [key, value] : table.entries()) {
    std::cout << quoted(key) << " = " << quoted(value) << '\n';
  }
}

}  // namespace

int dump(const Settings& settings, const Source& source) {
  const std::string file = fileOf(settings, source);
  Problems problems;
  const auto table = orvanta::strings::readStringTable(
      contentsOf(file), [&](const TableProblem& problem) { problems.add(problem); });
  if (table == nullptr) {
    throw Failure(nameOf(file) + " is not a strings file");
  }
  problems.print(nameOf(file));
  settings.json ? printJson(*table) : printLines(*table);
  return 0;
}

}  // namespace ovlocalize
