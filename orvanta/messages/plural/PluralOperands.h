#pragma once

#include <cstdint>
#include <string_view>

namespace orvanta {

/// The operand n of a plural rule, as far as rules can tell: they compare it with whole numbers.
struct WholeNumber {
  std::uint64_t digits;
  bool isWhole;

  friend constexpr WholeNumber operator%(WholeNumber a, std::uint64_t modulus) noexcept {
    return {a.digits % modulus, a.isWhole};
  }
  friend constexpr bool operator==(WholeNumber a, std::uint64_t b) noexcept {
    return a.isWhole && a.digits == b;
  }
};

/// What CLDR's plural rules ask about a number in the form in which it is shown: "1.50" has i = 1,
/// v = 2, w = 1, f = 50 and t = 5.
struct PluralOperands {
  std::uint64_t i =
      0;  ///< The whole part. Of a longer one the last 18 digits, plus 10 to the 18th.
  std::uint32_t v = 0;  ///< The number of digits behind the point.
  std::uint32_t w = 0;  ///< The same without zeros at the end.
  std::uint64_t f = 0;  ///< The digits behind the point.
  std::uint64_t t = 0;  ///< The same without zeros at the end.

  /// Of a number in plain digits, as `PlainNumber` writes it; the sign does not count. At most 18
  /// digits behind the point.
  [[nodiscard]] static PluralOperands of(std::string_view plainDigits) noexcept;

  /// The absolute value.
  [[nodiscard]] constexpr WholeNumber n() const noexcept { return {i, t == 0}; }
};

}  // namespace orvanta
