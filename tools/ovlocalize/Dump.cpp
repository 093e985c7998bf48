#include <iostream>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>

#include "Answering.h"
#include "Commands.h"
#include "FileContents.h"
#include "Json.h"

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

// On one line whatever it holds, in the escapes of the format.
std::string quoted(std::string_view text) {
  std::string line = "\"";
  for (const char character : text) {
    switch (character) {
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      case '\t':
        line += "\\t";
        break;
      case '"':
      case '\\':
        line += '\\';
        [[fallthrough]];
      default:
        line += character;
    }
  }
  return line + '"';
}

void printForMachines(const StringTable& table) {
  Json object = Json::object();
  // Not through the object's operator[], which looks for the key among all that came before.
  auto& entries = object.get_ref<Json::object_t&>();
  for (const auto& [key, value] : table.entries()) {
    entries.Container::emplace_back(std::string(key), std::string(value));
  }
  std::cout << printed(object) << '\n';
}

void printForPeople(const StringTable& table) {
  for (const auto& [key, value] : table.entries()) {
    std::cout << quoted(key) << " = " << quoted(value) << '\n';
  }
}

}  // namespace

int dump(const Settings& settings, const Source& source) {
  const std::string file = fileOf(settings, source);
  std::vector<TableProblem> problems;
  const auto table = orvanta::strings::readStringTable(
      contentsOf(file), [&](const TableProblem& problem) { problems.push_back(problem); });
  if (table == nullptr) {
    throw Failure(nameOf(file) + " holds nothing like a table of strings");
  }
  for (const TableProblem& problem : problems) {
    std::cerr << file << ':' << problem.line << ':' << problem.column << ": " << problem.message
              << '\n';
  }
  settings.json ? printForMachines(*table) : printForPeople(*table);
  return 0;
}

}  // namespace ovlocalize
