#pragma once

#include <string>
#include <string_view>

namespace orvanta::standard {

/// `text` in lower case by Unicode's simple mappings, U+0130 by its full one ("i" and U+0307),
/// whatever the process's locale is. Where the system has no locale "C.UTF-8" only ASCII changes.
/// Bytes that are no valid UTF-8 stay as they are.
[[nodiscard]] std::string lowerCased(std::string_view text);

}  // namespace orvanta::standard
