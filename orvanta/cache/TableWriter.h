#pragma once

#include <functional>

#include <orvanta/cache/Utf16Writer.h>
#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/URL.h>

namespace orvanta {

/// Gives a table's text to the writer, piece by piece.
using TableText = std::function<void(Utf16Writer& writer)>;

/// Writes a table's text to `file`, making its folder, and logs how that ended. When it fails, also
/// because the text is not valid UTF-8, what was at `file` stays.
[[nodiscard]] platform::FileOutcome writeTable(const TableText& text, const platform::URL& file);

/// The same for a file whose name comes from elsewhere: fails also when it is not inside `folder`.
[[nodiscard]] platform::FileOutcome writeTableInside(const platform::URL& folder,
                                                     const TableText& text,
                                                     const platform::URL& file);

}  // namespace orvanta
