#pragma once

#include <string_view>

namespace ovlocalize {

/// "name@example.com", "https://example.com": texts that are the same in every language.
[[nodiscard]] inline bool isAddress(std::string_view text) {
  return text.find(' ') == std::string_view::npos && (text.find('@', 1) != std::string_view::npos ||
                                                      text.find("://") != std::string_view::npos);
}

}  // namespace ovlocalize
