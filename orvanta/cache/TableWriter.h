#pragma once

#include <string>
#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/String.h>
#include <orvanta/platform/URL.h>

namespace orvanta {

/// The text as UTF-16, little-endian, with a byte-order mark. It must be valid UTF-8.
[[nodiscard]] std::string utf16WithByteOrderMark(std::string_view utf8);

/// Writes a table's text to `file`, making its folder, and logs how that ended. Fails, and touches
/// nothing, when the text is not valid UTF-8 or the file is not inside the folder `within`; an
/// absent folder confines nothing.
[[nodiscard]] platform::FileOutcome writeTable(const String& text, const platform::URL& file,
                                               const platform::URL& within);

}  // namespace orvanta
