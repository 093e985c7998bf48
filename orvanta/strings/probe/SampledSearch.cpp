#include <algorithm>
#include <cstring>
#include <utility>

#include <orvanta/strings/probe/SampledSearch.h>

namespace orvanta::strings {

SampledSearch::SampledSearch(std::vector<std::string> patterns) : patterns_(std::move(patterns)) {
  std::size_t shortest = patterns_.front().size();
  for (std::uint32_t number = 0; number < patterns_.size(); ++number) {
    const std::string& pattern = patterns_[number];
    shortest = std::min(shortest, pattern.size());
    longest_ = std::max(longest_, pattern.size());
    for (std::uint32_t offset = 0; offset + kWindowSize <= pattern.size(); ++offset) {
      const Window window = windowAt(pattern.data() + offset);
      places_.push_back({window, number, offset});
      filter_[filterIndex(window)] = 1;
    }
  }
  std::sort(places_.begin(), places_.end(),
            [](const Place& a, const Place& b) { return a.window < b.window; });
  // An occurrence of n bytes contains n - 7 windows: one of every n - 7 positions is sampled.
  stride_ = shortest - (kWindowSize - 1);
}

SampledSearch::Window SampledSearch::windowAt(const char* bytes) noexcept {
  Window window = 0;
  std::memcpy(&window, bytes, kWindowSize);
  return window;
}

std::size_t SampledSearch::filterIndex(Window window) noexcept {
  constexpr Window kSpreading = 0x9E3779B97F4A7C15;  // Odd; 2^64 divided by the golden ratio.
  return static_cast<std::size_t>((window * kSpreading) >> (64U - kFilterBits));
}

// 0 when no pattern contains the window at `bytes`.
inline unsigned SampledSearch::mayStartWindow(const char* bytes) const noexcept {
  return filter_[filterIndex(windowAt(bytes))];
}

std::size_t SampledSearch::find(std::string_view text, std::size_t from) const noexcept {
  const std::size_t end = text.size() < kWindowSize ? 0 : text.size() - kWindowSize + 1;
  const std::size_t stride = stride_;
  std::size_t at = from;
  // Several windows for each branch: their look-ups overlap, and the branch is almost never taken.
  constexpr std::size_t kTogether = 8;
  while (at + (kTogether - 1) * stride < end) {
    const char* next = text.data() + at;
    unsigned isCandidate = 0;
    for (std::size_t window = 0; window < kTogether; ++window) {
      isCandidate |= mayStartWindow(next);
      next += stride;
    }
    for (std::size_t window = 0; isCandidate != 0 && window < kTogether; ++window) {
      const std::size_t found = occurrenceAround(text, at + window * stride, from);
      if (found != kNone) {
        return found;
      }
    }
    at += kTogether * stride;
  }
  for (; at < end; at += stride) {
    const std::size_t found = occurrenceAround(text, at, from);
    if (found != kNone) {
      return found;
    }
  }
  return kNone;
}

std::size_t SampledSearch::occurrenceAround(std::string_view text, std::size_t at,
                                            std::size_t from) const noexcept {
  if (mayStartWindow(text.data() + at) == 0) {
    return kNone;
  }
  const Window window = windowAt(text.data() + at);
  auto place = std::lower_bound(places_.begin(), places_.end(), window,
                                [](const Place& a, Window b) { return a.window < b; });
  for (; place != places_.end() && place->window == window; ++place) {
    const std::string& pattern = patterns_[place->pattern];
    if (at - from >= place->offset && text.substr(at - place->offset).starts_with(pattern)) {
      return at - place->offset;
    }
  }
  return kNone;
}

}  // namespace orvanta::strings
