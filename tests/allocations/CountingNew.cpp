#include "CountingNew.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace orvanta::test {

namespace {
std::atomic<std::size_t> allocations = 0;
}  // namespace

std::size_t allocationsSoFar() noexcept {
  return allocations;
}

}  // namespace orvanta::test

// The other forms of both lead here, but for those of over-aligned types, of which there are none.
void* operator new(std::size_t size) {
  ++orvanta::test::allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
