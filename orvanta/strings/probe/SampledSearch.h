#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::strings {

/// Looks for any of a few byte patterns while reading only a small part of the text.
///
/// Of a text it looks at eight bytes at a time, a stride apart that is short enough that every
/// occurrence of every pattern covers one such window whole. A window that stands nowhere in a
/// pattern, as a small filter tells, is all that is needed to pass over a stride of text.
class SampledSearch {
 public:
  static constexpr std::size_t kShortestPattern = 8;

  /// Patterns of at least `kShortestPattern` bytes each; at least one.
  explicit SampledSearch(std::vector<std::string> patterns);

  [[nodiscard]] bool occursIn(std::string_view text) const noexcept;

  /// No occurrence is longer than this.
  [[nodiscard]] std::size_t longestPattern() const noexcept { return longest_; }

 private:
  using Window = std::uint64_t;
  static constexpr std::size_t kWindowSize = sizeof(Window);
  static constexpr unsigned kFilterBits = 14;
  static_assert(kShortestPattern >= kWindowSize);

  /// A place in a pattern at which a window stands.
  struct Place {
    Window window;
    std::uint32_t pattern;
    std::uint32_t offset;
  };

  [[nodiscard]] static Window windowAt(const char* bytes) noexcept;
  [[nodiscard]] static std::size_t filterIndex(Window window) noexcept;
  [[nodiscard]] unsigned mayStartWindow(const char* bytes) const noexcept;
  [[nodiscard]] bool occursAround(std::string_view text, std::size_t at) const noexcept;

  std::vector<std::string> patterns_;
  std::vector<Place> places_;  // Sorted by window.
  std::array<unsigned char, std::size_t{1} << kFilterBits> filter_{};
  std::size_t stride_ = 1;
  std::size_t longest_ = 0;
};

}  // namespace orvanta::strings
