#pragma once

#include <string_view>

#include <orvanta/strings/ByteSink.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/StringsPayload.h>

namespace orvanta::strings {

/// Calls `append` with the text of a strings file in pieces: for each pair an empty comment, the
/// assignment and a blank line. Pairs with an empty key or value, and values that are no text, are
/// left out. Nothing is escaped: keys and values are source text of the format.
template <typename Append>
void appendStringsFile(const StringsPayload& table, Append append) {
  for (const auto& [key, value] : table.entries()) {
    if (value.text().empty() || key.empty()) {
      continue;
    }
    append(std::string_view("/* */\n\""));
    append(key.view());
    append(std::string_view("\" = \""));
    append(value.text().view());
    append(std::string_view("\";\n\n"));
  }
}

/// Writes the text of the table's strings file to `file` as UTF-16, little-endian, with a
/// byte-order mark. Fails when a key or a text is not valid UTF-8.
Status writeStringsFile(const StringsPayload& table, ByteSink& file);
/// The same for a text that is that of a strings file already.
Status writeStringsFile(std::string_view text, ByteSink& file);

}  // namespace orvanta::strings
