#pragma once

#include <algorithm>
#include <cstddef>

namespace orvanta::strings {

/// Limits how much text recovery may read ahead without a result, to a fixed multiple of the text's
/// size. It keeps recovery linear. Ordinary damage uses almost none of it; a file that was crafted
/// to use it up is read line by line from there on.
class LookAheadBudget {
 public:
  explicit LookAheadBudget(std::size_t textSize) noexcept : left_(kPerByte * textSize) {}

  [[nodiscard]] bool isUsedUp() const noexcept { return left_ == 0; }

  /// Charges the distance from `from` to `to`; nothing when `to` does not stand behind `from`.
  void spend(const char* from, const char* to) noexcept {
    left_ -= to <= from ? 0 : std::min(left_, static_cast<std::size_t>(to - from));
  }

 private:
  static constexpr std::size_t kPerByte = 8;

  std::size_t left_;
};

}  // namespace orvanta::strings
