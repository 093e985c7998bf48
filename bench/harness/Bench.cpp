#include "harness/Bench.h"

#include <algorithm>
#include <iostream>
#include <vector>

namespace orvanta::bench {

bool Bench::isWanted(std::string_view row) const {
  const auto& [scratch, onlyContender, rows, without] = options_;
  return (rows.empty() || std::find(rows.begin(), rows.end(), row) != rows.end()) &&
         std::find(without.begin(), without.end(), row) == without.end();
}

void Bench::run(Row row) {
  if (!isWanted(row.name)) {
    return;
  }
  if (!options_.onlyContender.empty()) {
    std::erase_if(row.contenders,
                  [&](const Contender& each) { return each.name != options_.onlyContender; });
  }
  std::clog << row.name << "..." << std::endl;
  report_.add(row, measure(row));
}

}  // namespace orvanta::bench
