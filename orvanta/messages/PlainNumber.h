#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/messages/MessageArgument.h>

namespace orvanta {

/// A number in ASCII digits: an optional "-", digits, and where it shows any behind the point, "."
/// and those. "NaN", "∞" and "-∞" for what is no finite number.
///
/// A real number is rounded to the digits that it may show, half to even, as ICU does it: from its
/// shortest form, so that 0.0025 with 3 digits is "0.002".
class PlainNumber {
 public:
  /// `value` must be a number. With an offset, the number less that offset.
  explicit PlainNumber(const MessageValue& value, double offset = 0);

  [[nodiscard]] std::string_view text() const noexcept { return {characters_, size_}; }
  [[nodiscard]] bool isFinite() const noexcept { return isFinite_; }

 private:
  // The largest double has 309 digits before the point.
  static constexpr std::size_t kCapacity = 352;

  template <typename Integer>
  void writeInteger(Integer value);
  void writeReal(double value, int fewestFractionDigits, int mostFractionDigits);
  void append(char character) noexcept { characters_[size_++] = character; }
  void append(std::string_view text) noexcept;

  char characters_[kCapacity];
  std::size_t size_ = 0;
  bool isFinite_ = true;
};

}  // namespace orvanta
