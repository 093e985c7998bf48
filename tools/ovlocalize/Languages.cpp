#include <algorithm>
#include <iostream>
#include <string_view>
#include <vector>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"
#include "TextTable.h"

namespace ovlocalize {

namespace {

using orvanta::OVLocale;
using orvanta::String;

struct Row {
  String key;
  std::shared_ptr<OVLocale> locale;
  std::string_view source;

  [[nodiscard]] String path() const { return locale->bundle()->bundlePath(); }
};

std::vector<Row> catalogue() {
  orvanta::OVStringCache& cache = orvanta::Localizer::sharedLocalizer().stringCache();
  const auto downloaded = cache.cachedLanguages();
  std::vector<Row> rows;
  for (const auto& [key, locale] : cache.availableLanguages()) {
    const auto* cached = downloaded.find(key.view());
    const bool isDownloaded = cached != nullptr && *cached == locale;
    rows.push_back({key, locale, isDownloaded ? "downloaded" : "shipped"});
  }
  std::sort(rows.begin(), rows.end(),
            [](const Row& a, const Row& b) { return a.key.view() < b.key.view(); });
  return rows;
}

void printJson(const std::vector<Row>& rows) {
  Json array = Json::array();
  for (const Row& row : rows) {
    array.push_back({{"key", toJson(row.key)},
                     {"orvantaLocaleName", toJson(row.locale->orvantaLocaleName())},
                     {"appleLocaleName", toJson(row.locale->appleLocaleName())},
                     {"version", toJson(row.locale->version())},
                     {"fallbackLocales", toJson(row.locale->fallbackLocales())},
                     {"source", row.source},
                     {"path", toJson(row.path())}});
  }
  std::cout << printed(array) << '\n';
}

void printTable(const Settings& settings, const std::vector<Row>& rows) {
  TextTable table({{"LANGUAGE"}, {"FROM"}, {"VERSION"}, {"ALSO"}, {"FOLDER"}});
  for (const Row& row : rows) {
    const bool hasVersion = row.locale->version() != orvanta::OVOrvantaLanguageVersionKey;
    const orvanta::StringList& also = row.locale->fallbackLocales();
    table.add({oneLine(row.key), std::string(row.source),
               hasVersion ? oneLine(row.locale->version()) : "-",
               also.isPresent() ? oneLine(orvanta::componentsJoinedBy(',', also)) : "-",
               oneLine(row.path())});
  }
  table.print(settings.isColored);
}

int languages(const Settings& settings) {
  installPlatform(settings);
  const std::vector<Row> rows = catalogue();
  settings.json ? printJson(rows) : printTable(settings, rows);
  return 0;
}

}  // namespace

void addLanguages(CommandLine& commands) {
  commands.add("languages", "List the languages that exist, shipped and downloaded",
               "  ovlocalize --bundle demo/bundle languages", languages);
}

}  // namespace ovlocalize
