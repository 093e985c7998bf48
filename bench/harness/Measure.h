#pragma once

#include <string>
#include <vector>

#include "harness/Row.h"

namespace orvanta::bench {

/// The cost of one operation of a contender, in nanoseconds and allocations; in a row about memory,
/// the bytes that it keeps.
struct Measurement {
  std::string contender;
  double median = 0;
  double least = 0;
  double most = 0;
  double allocations = 0;
  double bytes = 0;
};

/// Checks all contenders and counts their allocations in an untimed round. Then times them in turn
/// and in alternating order, so that a disturbance of the machine affects all of them.
[[nodiscard]] std::vector<Measurement> measure(const Row& row);

}  // namespace orvanta::bench
