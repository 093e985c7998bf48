#pragma once

#include <cstddef>

namespace orvanta::test {

/// How often this program has asked for memory with `new` so far, on any thread.
[[nodiscard]] std::size_t allocationsSoFar() noexcept;

/// Refuses allocations, of `new` and of the library's own of the C heap, while it lives.
class RefusedAllocations {
 public:
  enum class Extent { one, allFromThere };

  /// After `granted` more allocations one is refused, or all are.
  RefusedAllocations(std::size_t granted, Extent extent) noexcept;
  ~RefusedAllocations();
  RefusedAllocations(const RefusedAllocations&) = delete;
  RefusedAllocations& operator=(const RefusedAllocations&) = delete;

  /// Whether any was refused.
  [[nodiscard]] static bool anyWas() noexcept;
};

/// Watches how much of the heap is in use while it lives, on one thread. Sanitizers count nothing.
class HeapPeak {
 public:
  HeapPeak() noexcept;
  ~HeapPeak();
  HeapPeak(const HeapPeak&) = delete;
  HeapPeak& operator=(const HeapPeak&) = delete;

  /// The most so far beyond what was in use before.
  [[nodiscard]] std::size_t bytes() const noexcept;

 private:
  std::size_t before_;
};

}  // namespace orvanta::test
