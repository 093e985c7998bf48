#pragma once

#include <string_view>

#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/text/TextWindow.h>

namespace orvanta::strings {

/// Adds the statements of a strings file in text form, as long as all of it is sound. False, with
/// an unknown part of them added, at the first damage, at a statement or comment that is too long
/// for the window, and for a table beyond 4 GiB: the file is to be read whole then.
[[nodiscard]] bool readSoundText(TextWindow& window, StringTableBuilder& table);

/// Adds the statements of a strings file in text form.
///
///     /* comment */
///     "key" = "value with \"escapes\"";   // comment
///     key = value;
///     "a key that is its own value";
///
/// `collector` may be empty, as `problems` may. Damage costs the statement that it hits and is
/// reported. Time is linear in the size of the text, whatever stands in it.
///
/// False, with the reason reported, when the text is no table: it is damaged and has no statement;
/// it begins like markup; or it does not begin with a statement and hardly any of it is statements.
[[nodiscard]] bool readTextTable(EncodedText text, StringTableBuilder& table,
                                 const ProblemCollector& problems,
                                 const StatementCollector& collector = {});

/// The same for a text that is all there. `places`, which is empty before, is told where its
/// statements stand.
[[nodiscard]] bool readTextTable(const WholeUtf8& text, StringTableBuilder& table,
                                 const ProblemCollector& problems, StatementPlaces& places);

}  // namespace orvanta::strings
