#pragma once

#include <algorithm>
#include <cstddef>

namespace orvanta::strings {

/// How much text may still be read ahead in vain, a fixed multiple of its size. It keeps recovery
/// linear: real damage uses next to nothing of it, and a file made to use it up is read line by
/// line from there on.
class LookAheadBudget {
 public:
  explicit LookAheadBudget(std::size_t textSize) noexcept : left_(kPerByte * textSize) {}

  [[nodiscard]] bool isUsedUp() const noexcept { return left_ == 0; }

  /// Charges a look from `from` as far as `to`; nothing when `to` does not stand behind it.
  void spend(const char* from, const char* to) noexcept {
    left_ -= to <= from ? 0 : std::min(left_, static_cast<std::size_t>(to - from));
  }

 private:
  static constexpr std::size_t kPerByte = 8;

  std::size_t left_;
};

}  // namespace orvanta::strings
