#pragma once

#include <cstdint>

/// What goes through malloc and its family, operator new included, from every library of the
/// process: the benchmark's executable stands in front of the C library's own functions.
namespace orvanta::bench::heap {

struct Traffic {
  std::uint64_t allocations = 0;  ///< Calls that gave memory; a reallocation is one.
  std::int64_t keptBytes = 0;     ///< Allocated less freed, as the heap rounds them up.
};

/// From here on calls are counted, on all threads. While nothing is counted a call costs one
/// predicted branch more than without the benchmark.
void startCounting() noexcept;

/// What was counted since.
Traffic stopCounting() noexcept;

}  // namespace orvanta::bench::heap
