#pragma once

#include <string_view>

#include <orvanta/text/StringsPayload.h>

namespace orvanta::strings {

/// Calls `put` with the text of a strings file, piece by piece; see
/// `OVStringCacheUtilities::localizableStringsFile` for what stands in it.
template <typename Put>
void forEachPieceOfStringsFile(const StringsPayload& table, Put put) {
  for (const auto& [key, value] : table.entries()) {
    if (value.text().empty() || key.empty()) {
      continue;
    }
    put(std::string_view("/* */\n\""));
    put(key.view());
    put(std::string_view("\" = \""));
    put(value.text().view());
    put(std::string_view("\";\n\n"));
  }
}

}  // namespace orvanta::strings
