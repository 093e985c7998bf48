#pragma once

#include <string_view>

#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// True when `utf8` begins with what only XML begins with, white space aside.
[[nodiscard]] bool looksLikeXmlTable(std::string_view utf8) noexcept;

/// Adds the pairs of an XML property list whose outermost value is a dictionary of texts.
///
///     <?xml version="1.0" encoding="UTF-8"?>
///     <!DOCTYPE plist ...>
///     <plist version="1.0">
///     <dict>
///       <key>greeting</key>
///       <string>Tom &amp; Jerry</string>
///     </dict>
///     </plist>
///
/// The document type is skipped, never fetched. Of the entities only the five predefined ones and
/// numeric references are known, any other costs its pair: nothing can be made to expand. A
/// reference to no character gives U+FFFD. Line ends become line feeds, as XML has it.
///
/// Damage costs the pair that it hits and is reported; problems are handed over at the end, in the
/// order of the file. Time is linear in the size of the text.
///
/// False, with the reason reported, when there is no property list or it is no dictionary; nothing
/// was added then.
[[nodiscard]] bool readXmlTable(std::string_view utf8, StringTableBuilder& table,
                                const ProblemCollector& problems);

}  // namespace orvanta::strings
