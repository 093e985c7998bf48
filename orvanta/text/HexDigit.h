#pragma once

#include <string_view>

namespace orvanta {

inline constexpr std::string_view kHexadecimalDigits = "0123456789ABCDEF";

inline constexpr unsigned kNoDigit = 16;

/// The value of a hexadecimal digit, of either case; `kNoDigit` for any other character. For a
/// smaller base compare the value with the base.
[[nodiscard]] constexpr unsigned digitValue(char c) noexcept {
  if (c >= '0' && c <= '9') {
    return static_cast<unsigned>(c - '0');
  }
  if (c >= 'a' && c <= 'f') {
    return static_cast<unsigned>(c - 'a') + 10;
  }
  return c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A') + 10 : kNoDigit;
}

}  // namespace orvanta
