#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace orvanta::bench {

/// The generator splitmix64: the same numbers in every run and with every standard library, which
/// <random>'s distributions do not guarantee.
class Random {
 public:
  explicit Random(std::string_view seed) noexcept {
    for (const char character : seed) {
      state_ = (state_ ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    }
  }

  /// A number below `limit`, which must fit in 32 bits and not be 0.
  [[nodiscard]] std::size_t below(std::size_t limit) noexcept {
    return static_cast<std::size_t>(((next() >> 32) * limit) >> 32);
  }
  /// A number between both ends, inclusive.
  [[nodiscard]] std::size_t between(std::size_t least, std::size_t most) noexcept {
    return least + below(most - least + 1);
  }
  [[nodiscard]] bool percent(std::size_t chance) noexcept { return below(100) < chance; }

  template <typename Item>
  void shuffle(std::vector<Item>& items) noexcept {
    for (std::size_t left = items.size(); left > 1; --left) {
      std::swap(items[left - 1], items[below(left)]);
    }
  }

 private:
  std::uint64_t next() noexcept {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t word = state_;
    word = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9;
    word = (word ^ (word >> 27)) * 0x94D049BB133111EB;
    return word ^ (word >> 31);
  }

  std::uint64_t state_ = 0xCBF29CE484222325;
};

}  // namespace orvanta::bench
