#pragma once

#include <string_view>

#include <orvanta/strings/ByteSink.h>
#include <orvanta/text/Status.h>
#include <orvanta/text/StringsPayload.h>

namespace orvanta::strings {

/// Passes the text of a strings file to `append`, piece by piece: for each pair an empty comment,
/// the assignment and a blank line. Leaves out pairs with an empty key or value, and values that
/// are no texts. Escapes nothing: keys and values are source text of the format.
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
/// The same for the text of a strings file.
Status writeStringsFile(std::string_view text, ByteSink& file);

}  // namespace orvanta::strings
