#include <algorithm>
#include <iostream>
#include <string_view>
#include <vector>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

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

void printLines(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    std::cout << oneLine(row.key) << '\t' << row.source << '\t' << oneLine(row.path());
    if (row.locale->version() != orvanta::OVOrvantaLanguageVersionKey) {
      std::cout << "\tversion " << oneLine(row.locale->version());
    }
    if (row.locale->fallbackLocales().isPresent()) {
      std::cout << "\talso "
                << oneLine(orvanta::componentsJoinedBy(',', row.locale->fallbackLocales()));
    }
    std::cout << '\n';
  }
}

int languages(const Settings& settings) {
  installPlatform(settings);
  const std::vector<Row> rows = catalogue();
  settings.json ? printJson(rows) : printLines(rows);
  return 0;
}

}  // namespace

void addLanguages(CommandLine& commands) {
  commands.add("languages", "List the languages that exist, shipped and downloaded",
               "  ovlocalize --bundle demo/bundle languages", languages);
}

}  // namespace ovlocalize
