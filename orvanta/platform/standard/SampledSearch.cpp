#include <algorithm>
#include <cstring>
#include <utility>

#include <orvanta/platform/standard/SampledSearch.h>

namespace orvanta::platform::standard {

SampledSearch::SampledSearch(std::vector<std::string> patterns) : patterns_(std::move(patterns)) {
  std::size_t shortest = patterns_.front().size();
  for (std::uint32_t index = 0; index < patterns_.size(); ++index) {
    const std::string& pattern = patterns_[index];
    shortest = std::min(shortest, pattern.size());
    longest_ = std::max(longest_, pattern.size());
    for (std::uint32_t offset = 0; offset + kWindowSize <= pattern.size(); ++offset) {
      const Window window = windowAt(pattern.data() + offset);
      places_.push_back({window, index, offset});
      filter_.set(filterIndex(window));
    }
  }
  std::sort(places_.begin(), places_.end(),
            [](const Place& a, const Place& b) { return a.window < b.window; });
  // An occurrence of n bytes has n - 3 windows: of as many positions in a row one is sampled.
  stride_ = shortest - (kWindowSize - 1);
}

SampledSearch::Window SampledSearch::windowAt(const char* bytes) noexcept {
  Window window = 0;
  std::memcpy(&window, bytes, kWindowSize);
  return window;
}

std::size_t SampledSearch::filterIndex(Window window) noexcept {
  constexpr Window kSpreading = 0x9E3779B1;  // Odd, close to 2^32 divided by the golden ratio.
  return (window * kSpreading) >> (32U - kFilterBits);
}

bool SampledSearch::occursIn(std::string_view text) const noexcept {
  for (std::size_t at = 0; at + kWindowSize <= text.size(); at += stride_) {
    const Window window = windowAt(text.data() + at);
    if (filter_[filterIndex(window)] && occursAround(text, at, window)) {
      return true;
    }
  }
  return false;
}

bool SampledSearch::occursAround(std::string_view text, std::size_t at,
                                 Window window) const noexcept {
  auto place = std::lower_bound(places_.begin(), places_.end(), window,
                                [](const Place& a, Window b) { return a.window < b; });
  for (; place != places_.end() && place->window == window; ++place) {
    const std::string& pattern = patterns_[place->pattern];
    if (at >= place->offset && text.substr(at - place->offset).starts_with(pattern)) {
      return true;
    }
  }
  return false;
}

}  // namespace orvanta::platform::standard
