#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/String.h>
#include <orvanta/platform/URL.h>

namespace orvanta {

/// The text as UTF-16, little-endian, with a byte-order mark; absent when it is not valid UTF-8.
[[nodiscard]] std::optional<std::string> utf16WithByteOrderMark(std::string_view utf8);

/// Writes a table's text to `file`, making its folder, and logs how that ended. Fails, and touches
/// nothing, when the text is not valid UTF-8.
[[nodiscard]] platform::FileOutcome writeTable(const String& text, const platform::URL& file);

/// The same for a file whose name comes from elsewhere: fails also when it is not inside `folder`.
[[nodiscard]] platform::FileOutcome writeTableInside(const platform::URL& folder,
                                                     const String& text, const platform::URL& file);

}  // namespace orvanta
