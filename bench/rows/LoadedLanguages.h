#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "data/Corpus.h"

namespace orvanta::bench {

/// One language for each kind of script: Latin with accents, two-byte letters from left to right
/// and from right to left, three-byte characters.
inline constexpr std::array<std::string_view, 4> kLoadedLanguages = {"fr", "ru", "ar", "zh-Hans"};

struct LoadedTable {
  std::string_view language;
  Table table;
};
using LoadedTables = std::vector<LoadedTable>;

inline LoadedTables makeLoadedTables(std::size_t strings) {
  const auto keys = makeKeys(strings);
  LoadedTables tables;
  for (const std::string_view language : kLoadedLanguages) {
    tables.push_back({language, makeTable(languageNamed(language), keys)});
  }
  return tables;
}

/// ICU's name of a language, with an underscore.
inline std::string icuLocale(std::string_view language) {
  std::string locale(language);
  std::replace(locale.begin(), locale.end(), '-', '_');
  return locale;
}

}  // namespace orvanta::bench
