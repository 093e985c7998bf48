#pragma once

#include <cstddef>

namespace orvanta::strings {

/// Finds the first of something from any place on and remembers the answer, which is good for
/// every place in between: what stands far away, or nowhere, is looked for once. Going back costs
/// the way back.
///
/// `Find` gives the first in [from, to), or null, and `kLength` bytes make one.
template <const char* (*Find)(const char* from, const char* to) noexcept, std::size_t kLength = 1>
class RememberedSearch {
 public:
  RememberedSearch(const char* begin, const char* end) noexcept
      : end_(end), searchedFrom_(begin), found_(search(begin, end)) {}

  /// The end of the text when there is none.
  [[nodiscard]] const char* first(const char* from) noexcept {
    if (from > found_) {
      found_ = search(from, end_);
      searchedFrom_ = from;
    } else if (from < searchedFrom_) {
      goBack(from);
    }
    return found_;
  }

 private:
  [[nodiscard]] static const char* search(const char* from, const char* to) noexcept {
    const char* found = Find(from, to);
    return found == nullptr ? to : found;
  }

  void goBack(const char* from) noexcept {
    const std::size_t overlap = kLength - 1;
    const auto left = static_cast<std::size_t>(end_ - searchedFrom_);
    if (const char* found = Find(from, searchedFrom_ + (overlap < left ? overlap : left))) {
      found_ = found;
    }
    searchedFrom_ = from;
  }

  const char* end_;
  const char* searchedFrom_;
  const char* found_;
};

}  // namespace orvanta::strings
