#pragma once

#include <functional>

#include <orvanta/platform/FileManager.h>
#include <orvanta/strings/writer/Utf16Writer.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// Gives a table's text to the writer, piece by piece.
using TableText = std::function<void(strings::Utf16Writer& writer)>;

/// Writes a table's text to `file`, making its folder, and logs how that ended. When it fails, also
/// because the text is not valid UTF-8, what was at `file` stays.
[[nodiscard]] FileOutcome writeTable(const TableText& text, const URL& file);

/// The same for a file whose name comes from elsewhere: fails also when it is not inside `folder`.
[[nodiscard]] FileOutcome writeTableInside(const URL& folder, const TableText& text,
                                           const URL& file);

}  // namespace orvanta
