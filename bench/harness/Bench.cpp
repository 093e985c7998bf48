#include "harness/Bench.h"

#include <iostream>

namespace orvanta::bench {

void Bench::run(const Row& row) {
  std::clog << row.name << "..." << std::endl;
  report_.add(row, measure(row));
}

}  // namespace orvanta::bench
