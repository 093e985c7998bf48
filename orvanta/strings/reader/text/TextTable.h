#pragma once

#include <string_view>

#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

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
/// False, with the reason reported, when this is nothing like a table: no statement could be read
/// and something was wrong; it begins as markup does; or it begins with something else than a
/// statement and next to nothing of it is one.
[[nodiscard]] bool readTextTable(EncodedText text, StringTableBuilder& table,
                                 const ProblemCollector& problems,
                                 const StatementCollector& collector = {});

}  // namespace orvanta::strings
