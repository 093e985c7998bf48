#pragma once

#include <string>
#include <string_view>

namespace orvanta::bench {

/// Appends the text as it is written between double quotes in strings files, .po files and ICU's
/// sources: quotes and backslashes with a backslash before them, a line feed as "\\n".
void appendEscaped(std::string& out, std::string_view text);

}  // namespace orvanta::bench
