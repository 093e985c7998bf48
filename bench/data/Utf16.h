#pragma once

#include <string>
#include <string_view>

namespace orvanta::bench {

/// `text`, which must be valid UTF-8, in UTF-16.
[[nodiscard]] std::u16string utf16(std::string_view text);

}  // namespace orvanta::bench
