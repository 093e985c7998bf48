#include <algorithm>
#include <cstddef>
#include <unordered_map>

#include <orvanta/strings/reader/text/LineCounter.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/text/TextHash.h>

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

std::vector<StatementPlaces::Place> StatementPlaces::takeHolding() {
  std::unordered_map<std::string_view, std::size_t, TextHash> last;
  for (std::size_t index = 0; index < places_.size(); ++index) {
    const auto [entry, isNew] = last.try_emplace(places_[index].key, index);
    if (!isNew && (!places_[index].isTentative || places_[entry->second].isTentative)) {
      entry->second = index;
    }
  }
  std::vector<std::size_t> holding;
  holding.reserve(last.size());
  for (const auto& [key, index] : last) {
    holding.push_back(index);
  }
  std::sort(holding.begin(), holding.end(),
            [this](std::size_t a, std::size_t b) { return places_[a].at < places_[b].at; });
  std::vector<Place> places;
  places.reserve(holding.size());
  for (const std::size_t index : holding) {
    places.push_back(std::move(places_[index]));
  }
  places_.clear();
  return places;
}

}  // namespace orvanta::strings
