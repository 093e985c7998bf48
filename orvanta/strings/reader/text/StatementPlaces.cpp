#include <algorithm>

#include <orvanta/strings/reader/text/LineCounter.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>

namespace orvanta::strings {

void StatementPlaces::report(const char* begin, const StatementCollector& collector) {
  std::stable_sort(places_.begin(), places_.end(),
                   [](const Place& a, const Place& b) { return a.at < b.at; });
  LineCounter counter(begin);
  for (std::size_t index = 0; index < places_.size(); ++index) {
    const Place& place = places_[index];
    if (index + 1 == places_.size() || places_[index + 1].at != place.at) {
      counter.countTo(place.at);
      collector({counter.line(), counter.column(), place.key});
    }
  }
}

}  // namespace orvanta::strings
