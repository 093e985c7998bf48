#include "harness/Bench.h"

#include <iostream>
#include <vector>

namespace orvanta::bench {

void Bench::run(Row row) {
  if (!onlyContender_.empty()) {
    std::erase_if(row.contenders,
                  [&](const Contender& each) { return each.name != onlyContender_; });
  }
  std::clog << row.name << "..." << std::endl;
  report_.add(row, measure(row));
}

}  // namespace orvanta::bench
