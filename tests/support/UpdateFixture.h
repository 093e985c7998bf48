#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <orvanta/text/StringsPayload.h>

namespace orvanta::test {

using Pairs = std::vector<std::pair<std::string, std::string>>;

inline StringsPayload tableOf(const Pairs& pairs) {
  auto table = StringsPayload::dictionary();
  for (const auto& [key, value] : pairs) {
    table.add(key, String(value));
  }
  return table;
}

/// The payload of one language, with its table under the bundle and the namespace.
inline StringsPayload payloadWith(StringsPayload table, const String& space = "main",
                                  const String& bundle = "app") {
  auto data = StringsPayload::dictionary({{"zantorData", std::move(table)}});
  auto spaces = StringsPayload::dictionary({{space, std::move(data)}});
  return StringsPayload::dictionary({{bundle, std::move(spaces)}});
}

/// A download of such payloads.
inline StringsPayload payloadOf(const std::vector<std::pair<std::string, Pairs>>& languages) {
  auto strings = StringsPayload::dictionary();
  for (const auto& [language, pairs] : languages) {
    strings.add(language, payloadWith(tableOf(pairs)));
  }
  return strings;
}

/// The number of files, of whatever name, below a folder.
inline std::size_t tablesBelow(const std::filesystem::path& folder) {
  const std::filesystem::recursive_directory_iterator files(folder);
  return static_cast<std::size_t>(std::count_if(begin(files), end(files), [](const auto& entry) {
    return !entry.is_symlink() && entry.is_regular_file();
  }));
}

}  // namespace orvanta::test
