#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/text/TextToken.h>

namespace orvanta::strings {

/// Where the statements of a text stand. Pointers into the text, which must outlive what is asked
/// of them.
class StatementPlaces {
 public:
  struct Place {
    const char* at;      ///< Where the characters of the key begin, or of an XML key its tag.
    const char* keyEnd;  ///< Behind the key and its quote; null in XML.
    TextToken value;     ///< Of XML the inside of the element, or all of `<string/>`.
    std::string key;     ///< With its escapes resolved.
    bool isTentative = false;
  };

  void add(Place place) { places_.push_back(std::move(place)); }

  /// Makes the place that was added last that of a tentative entry.
  void makeLastTentative() { places_.back().isTentative = true; }

  /// Where further statements can be put: the closing brace, the closing tag of the dictionary, or
  /// the end of the text; null where there is no such place.
  void setTableEnd(const char* end) noexcept { tableEnd_ = end; }
  [[nodiscard]] const char* tableEnd() const noexcept { return tableEnd_; }

  /// Reports the statements in the order of the text that begins at `begin`. Of several entries
  /// with one place, the last is told.
  void report(const char* begin, const StatementCollector& collector);

  /// For each key the place of the statement that holds, in the order of the text.
  [[nodiscard]] std::vector<Place> takeHolding();

 private:
  std::vector<Place> places_;
  const char* tableEnd_ = nullptr;
};

}  // namespace orvanta::strings
