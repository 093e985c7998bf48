#pragma once

#include <algorithm>
#include <cstddef>

namespace orvanta::strings {

/// What may still be read ahead in vain. Real damage uses next to nothing of it; a file made to
/// have the reader look ahead over and over is read more coarsely once it is used up, so that the
/// time stays linear.
class LookAheadBudget {
 public:
  explicit LookAheadBudget(std::size_t textSize) noexcept : left_(kPerByte * textSize) {}

  [[nodiscard]] bool isUsedUp() const noexcept { return left_ == 0; }

  /// Takes account of a look from `from` as far as `to`, which may stand before it.
  void spend(const char* from, const char* to) noexcept {
    left_ -= to <= from ? 0 : std::min(left_, static_cast<std::size_t>(to - from));
  }

 private:
  static constexpr std::size_t kPerByte = 16;

  std::size_t left_;
};

}  // namespace orvanta::strings
