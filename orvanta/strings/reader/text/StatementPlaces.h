#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// Where the statements of a text stand, kept until they can be told with lines and columns.
class StatementPlaces {
 public:
  /// `at` is where the characters of the key begin. Of several entries with one place, the last is
  /// kept.
  void add(const char* at, std::string_view key) { places_.push_back({at, std::string(key)}); }

  /// Reports the statements in the order of the text that begins at `begin`.
  void report(const char* begin, const StatementCollector& collector);

 private:
  struct Place {
    const char* at;
    std::string key;
  };

  std::vector<Place> places_;
};

}  // namespace orvanta::strings
