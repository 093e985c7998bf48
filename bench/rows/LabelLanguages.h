#pragma once

#include <string>
#include <vector>

#include "data/Random.h"
#include "data/TableForms.h"

namespace orvanta::bench {

/// What the labels of a window show in two languages.
struct LabelLanguages {
  static constexpr std::size_t kStrings = 10'000;
  static constexpr std::size_t kLabels = 1'000;

  LabelLanguages() {
    Random random("labels");
    for (std::size_t label = 0; label < kLabels; ++label) {
      asked.push_back(random.below(kStrings));
    }
  }
  [[nodiscard]] const std::string& key(std::size_t label) const {
    return english[asked[label]].key;
  }
  [[nodiscard]] const std::string& text(std::size_t label, bool isFrench) const {
    return (isFrench ? french : english)[asked[label]].value;
  }

  const std::vector<std::string> keys = makeKeys(kStrings);
  const Table french = makeTable(languageNamed("fr"), keys);
  const Table english = makeTable(languageNamed("en"), keys);
  std::vector<std::size_t> asked;
};

}  // namespace orvanta::bench
