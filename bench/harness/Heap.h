#pragma once

#include <cstdint>

/// Calls of malloc and its family, including operator new, from every library of the process: the
/// executable's functions replace those of the C library.
namespace orvanta::bench::heap {

struct Traffic {
  std::uint64_t allocations = 0;  ///< Calls that gave memory; a reallocation is one.
  std::int64_t keptBytes = 0;     ///< Allocated less freed, as the heap rounds them up.
};

/// Starts counting, on all threads. While nothing is counted, a call costs one predicted branch
/// more.
void startCounting() noexcept;

/// The counts since then.
Traffic stopCounting() noexcept;

}  // namespace orvanta::bench::heap
