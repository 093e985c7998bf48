#pragma once

#include <string>
#include <string_view>

namespace orvanta::bench {

/// Appends the text as it stands between double quotes in strings files, .po files and ICU's
/// sources alike: quotes and backslashes behind a backslash, a line feed as "\\n".
void appendEscaped(std::string& out, std::string_view text);

}  // namespace orvanta::bench
