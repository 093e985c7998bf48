#include <algorithm>
#include <cctype>
#include <iostream>
#include <memory>
#include <string>
#include <unordered_map>

#include <orvanta/text/TextHash.h>

#include "../CommandLine.h"
#include "../Commands.h"
#include "../Escaping.h"
#include "../FileContents.h"
#include "../Json.h"
#include "../ReplaceFile.h"
#include "Documents.h"
#include "Formats.h"

namespace ovlocalize {

namespace {

using orvanta::strings::DocumentEntry;
using orvanta::strings::StringsDocument;

struct ImportRequest {
  TableRequest table;
  std::string file;
  bool takesFuzzy = false;
};

struct ImportReport {
  std::string file;
  std::size_t changed = 0;
  std::size_t added = 0;
  std::size_t unchanged = 0;
  std::size_t untranslated = 0;
  std::size_t fuzzy = 0;
  std::size_t leftOut = 0;
};

using TextsByKey = std::unordered_map<std::string_view, std::string_view, orvanta::TextHash>;

// PO writes the parts of a language with "_" between them.
std::string comparable(std::string language) {
  std::replace(language.begin(), language.end(), '_', '-');
  std::transform(language.begin(), language.end(), language.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return language;
}

Catalog readCatalog(const ImportRequest& request) {
  const std::string bytes = contentsOf(request.file);
  const std::string name = nameOf(request.file);
  // Markup in UTF-8 or UTF-16; a PO file begins with neither.
  const std::string_view mark = std::string_view(bytes).substr(0, 3);
  const std::size_t begin = bytes.find_first_not_of(" \t\r\n", mark == "\xEF\xBB\xBF" ? 3 : 0);
  const bool isMarkup = (begin != std::string::npos && bytes[begin] == '<') ||
                        mark.starts_with("\xFF\xFE") || mark.starts_with("\xFE\xFF");
  Catalog catalog = isMarkup ? catalogFromXliff(bytes, name) : catalogFromPo(bytes, name);
  if (!catalog.isOfOneLanguage) {
    throw Failure(name + " is for several languages");
  }
  if (!catalog.language.empty() &&
      comparable(catalog.language) != comparable(request.table.language)) {
    throw Failure(name + " is for the language " + catalog.language + ", not for " +
                  request.table.language);
  }
  // An empty table is exported, too, with the language's name.
  if (catalog.units.empty() && (catalog.leftOut > 0 || catalog.language.empty())) {
    throw Failure(name + " holds no text under a key");
  }
  return catalog;
}

// The translations to take over, those of the source's keys in the source's order and with its
// comments, then the others.
std::vector<DocumentEntry> textsFrom(const Catalog& catalog, const StringsDocument& source,
                                     const ImportRequest& request, ImportReport& report) {
  std::unordered_map<std::string_view, const Unit*, orvanta::TextHash> units;
  for (const Unit& unit : catalog.units) {
    if (!units.emplace(unit.key, &unit).second) {
      throw Failure(nameOf(request.file) + " holds two texts under the key " + unit.key);
    }
  }
  std::vector<DocumentEntry> texts;
  const auto take = [&](const Unit& unit, const std::string& comment) {
    if (!unit.target) {
      ++report.untranslated;
    } else if (unit.isFuzzy && !request.takesFuzzy) {
      ++report.fuzzy;
    } else {
      texts.push_back({unit.key, *unit.target, comment});
    }
  };
  for (const DocumentEntry& entry : source.entries()) {
    if (const auto unit = units.find(entry.key); unit != units.end()) {
      take(*unit->second, entry.comment);
      units.erase(unit);
    }
  }
  for (const Unit& unit : catalog.units) {
    if (units.contains(unit.key)) {
      take(unit, unit.note);
    }
  }
  return texts;
}

void count(const std::vector<DocumentEntry>& texts, const StringsDocument& old,
           ImportReport& report) {
  TextsByKey values;
  for (const DocumentEntry& entry : old.entries()) {
    values.emplace(entry.key, entry.value);
  }
  for (const DocumentEntry& text : texts) {
    const auto value = values.find(text.key);
    std::size_t& number = value == values.end()         ? report.added
                          : value->second == text.value ? report.unchanged
                                                        : report.changed;
    ++number;
  }
}

void print(const ImportReport& report, bool asJson) {
  if (asJson) {
    std::cout << printed({{"file", report.file},
                          {"changed", report.changed},
                          {"added", report.added},
                          {"unchanged", report.unchanged},
                          {"untranslated", report.untranslated},
                          {"fuzzy", report.fuzzy},
                          {"leftOut", report.leftOut}})
              << '\n';
    return;
  }
  std::cout << escaped(report.file) << ": " << report.changed << " changed, " << report.added
            << " added, " << report.unchanged << " unchanged; " << report.untranslated
            << " not translated, " << report.fuzzy << " fuzzy, " << report.leftOut
            << " without a key\n";
}

int importTable(const Settings& settings, const ImportRequest& request) {
  const TableRequest& table = request.table;
  ImportReport report;
  report.file = fileInBundle(settings, table.language, table.table);
  const StringsDocument source =
      documentIn(fileInBundle(settings, table.source, table.table), Missing::kEmpty);
  const StringsDocument old = documentIn(report.file, Missing::kEmpty);
  const Catalog catalog = readCatalog(request);
  report.leftOut = catalog.leftOut;
  const std::vector<DocumentEntry> texts = textsFrom(catalog, source, request, report);
  count(texts, old, report);
  const std::optional<std::string> bytes = old.withTexts(texts);
  if (!bytes) {
    throw Failure(report.file +
                  " cannot hold these texts: it is damaged, or XML and a text has a NUL character");
  }
  if (report.changed + report.added > 0) {
    replaceFile(report.file, *bytes);
  }
  print(report, settings.json);
  return 0;
}

}  // namespace

void addImport(CommandLine& commands) {
  const auto request = std::make_shared<ImportRequest>();
  CLI::App& command = commands.add(
      "import",
      "Take over translations from a PO or XLIFF 1.2 file. In the language's strings file only\n"
      "the texts that differ are replaced; new ones are appended with English's comments",
      "  ovlocalize --bundle demo/bundle import --language fr fr.po\n"
      "  ovlocalize --bundle demo/bundle import --language fr --fuzzy fr.xlf",
      [request](const Settings& settings) { return importTable(settings, *request); });
  addTableOptions(command, request->table);
  command.add_flag("--fuzzy", request->takesFuzzy,
                   "Take translations, too, that are marked as not yet certain");
  command.add_option("file", request->file, "The file, or - for standard input")
      ->required()
      ->check(refuseEmpty)
      ->type_name("FILE");
}

}  // namespace ovlocalize
