#pragma once

#include <string>
#include <vector>

#include "harness/Row.h"

namespace orvanta::bench {

/// What a contender's operation took, in nanoseconds and allocations; or, in a row about memory,
/// what it kept in bytes.
struct Measurement {
  std::string contender;
  double median = 0;
  double least = 0;
  double most = 0;
  double allocations = 0;
  double bytes = 0;
};

/// Checks all contenders, counts their allocations in a round that is not timed, then times them
/// in turn, each time in another order, so that a disturbance of the machine hits all of them.
[[nodiscard]] std::vector<Measurement> measure(const Row& row);

}  // namespace orvanta::bench
