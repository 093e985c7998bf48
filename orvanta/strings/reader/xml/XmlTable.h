#pragma once

#include <string_view>

#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>

namespace orvanta::strings {

/// True when `utf8`, white space aside, begins as an XML property list may.
[[nodiscard]] bool looksLikeXmlTable(std::string_view utf8) noexcept;
/// The same for the first characters of a text.
[[nodiscard]] bool looksLikeXmlTable(EncodedText text) noexcept;

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
/// The `plist` element may be missing. Bytes without a mark are read in the encoding that the
/// document declares: a Unicode one, ISO-8859-1 or windows-1252; any other is refused.
///
/// The document type is skipped, never fetched. Only the five predefined entities and numeric
/// references are known; any other costs its pair, so that nothing expands. A reference to no
/// character gives U+FFFD and is reported. Line ends become line feeds.
///
/// Damage costs the pair that it hits and is reported, in the order of the file. Time and memory
/// are linear in the size of the text.
///
/// False, with the reason reported, when there is no property list or it is no dictionary; nothing
/// was added then.
[[nodiscard]] bool readXmlTable(EncodedText text, StringTableBuilder& table,
                                const ProblemCollector& problems,
                                const StatementCollector& statements);

/// The same for a text that was converted from the encoding that it declares. `places`, which is
/// empty before, is told where its pairs stand.
[[nodiscard]] bool readXmlTable(const WholeUtf8& text, StringTableBuilder& table,
                                const ProblemCollector& problems, StatementPlaces& places);

}  // namespace orvanta::strings
