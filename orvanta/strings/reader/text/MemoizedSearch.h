#pragma once

#include <algorithm>
#include <cstddef>

namespace orvanta::strings {

/// Memoized forward search. The last match answers every search that begins between where its
/// search began and the match, so that a distant match, or the absence of one, is searched for
/// once. A search from an earlier place reads the text from there to where the last search began.
///
/// `Find` returns the first match in [from, to), or null; a match is at most `kLength` bytes long.
template <const char* (*Find)(const char* from, const char* to) noexcept, std::ptrdiff_t kLength>
class MemoizedSearch {
 public:
  MemoizedSearch(const char* begin, const char* end) noexcept
      : end_(end), searchedFrom_(begin), found_(search(begin, end)) {}

  /// The first match from `from` on; the end of the text when there is none.
  [[nodiscard]] const char* first(const char* from) noexcept {
    if (from > found_) {
      found_ = search(from, end_);
      searchedFrom_ = from;
    } else if (from < searchedFrom_) {
      searchGap(from);
    }
    return found_;
  }

 private:
  [[nodiscard]] static const char* search(const char* from, const char* to) noexcept {
    const char* found = Find(from, to);
    return found == nullptr ? to : found;
  }

  // Searches from `from` to where the last search began, and as far behind that as a match may
  // reach.
  void searchGap(const char* from) noexcept {
    const std::ptrdiff_t overlap = std::min(kLength - 1, end_ - searchedFrom_);
    if (const char* found = Find(from, searchedFrom_ + overlap)) {
      found_ = found;
    }
    searchedFrom_ = from;
  }

  const char* end_;
  const char* searchedFrom_;
  const char* found_;
};

}  // namespace orvanta::strings
