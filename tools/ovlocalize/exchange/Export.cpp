#include <ctime>
#include <iostream>
#include <memory>
#include <string>
#include <unordered_map>

#include <sys/stat.h>

#include <orvanta/text/TextHash.h>

#include "../CommandLine.h"
#include "../Commands.h"
#include "../ReplaceFile.h"
#include "../Tables.h"
#include "Documents.h"
#include "Formats.h"

namespace ovlocalize {

namespace {

using orvanta::strings::DocumentEntry;
using orvanta::strings::StringsDocument;

struct ExportRequest {
  TableRequest table;
  std::string format = "po";
  std::string output = "-";
};

std::time_t changeOf(const std::string& file) {
  struct stat status {};
  return ::stat(file.c_str(), &status) == 0 ? status.st_mtime : std::time_t{0};
}

Unit unitFrom(const DocumentEntry& entry) {
  Unit unit;
  unit.key = entry.key;
  unit.source = entry.value;
  unit.note = entry.comment;
  unit.isForTranslators = !isConfigurationKey(entry.key);
  return unit;
}

// The source's texts in its order; behind them what the language alone has, for which the source
// shows the key.
std::vector<Unit> unitsOf(const StringsDocument& source, const StringsDocument& language) {
  std::vector<Unit> units;
  std::unordered_map<std::string_view, std::size_t, orvanta::TextHash> places;
  for (const DocumentEntry& entry : source.entries()) {
    places.emplace(entry.key, units.size());
    units.push_back(unitFrom(entry));
  }
  for (const DocumentEntry& entry : language.entries()) {
    const auto [place, isNew] = places.try_emplace(entry.key, units.size());
    if (isNew) {
      units.push_back(unitFrom(entry));
      units.back().source = entry.key;
    }
    Unit& unit = units[place->second];
    unit.target = entry.value;
    unit.note = unit.note.empty() ? entry.comment : unit.note;
  }
  return units;
}

int exportTable(const Settings& settings, const ExportRequest& request) {
  const TableRequest& table = request.table;
  const std::string sourceFile = fileInBundle(settings, table.source, table.table);
  const std::string file = fileInBundle(settings, table.language, table.table);
  const StringsDocument source = documentIn(sourceFile, Missing::kRefused);
  const StringsDocument language = documentIn(file, Missing::kEmpty);
  Catalog catalog;
  catalog.sourceLanguage = table.source;
  catalog.language = table.language;
  catalog.table = table.table + ".strings";
  catalog.revision = std::max(changeOf(file), changeOf(sourceFile));
  catalog.units = unitsOf(source, language);
  const std::string contents = request.format == "po" ? poFrom(catalog) : xliffFrom(catalog);
  if (request.output == "-") {
    std::cout << contents;
  } else {
    replaceFile(request.output, contents);
  }
  return 0;
}

}  // namespace

void addExport(CommandLine& commands) {
  const auto request = std::make_shared<ExportRequest>();
  CLI::App& command = commands.add(
      "export",
      "Write a file for translators, in which the texts of a language stand beside those of\n"
      "English under the same keys, in English's order and with its comments",
      "  ovlocalize --bundle demo/bundle export --language fr --output fr.po\n"
      "  ovlocalize --bundle demo/bundle export --language fr --format xliff >fr.xlf",
      [request](const Settings& settings) { return exportTable(settings, *request); });
  addTableOptions(command, request->table);
  command.add_option("--format", request->format, "po, or xliff for XLIFF 1.2 (default: po)")
      ->check(CLI::IsMember({"po", "xliff"}).description(""))
      ->type_name("po|xliff");
  command.add_option("--output", request->output, "The file (default: standard output)")
      ->check(refuseEmpty)
      ->type_name("FILE");
}

}  // namespace ovlocalize
