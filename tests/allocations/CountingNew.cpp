#include "CountingNew.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <new>

#include <dlfcn.h>
#include <malloc.h>

namespace orvanta::test {

namespace {

std::atomic<std::size_t> allocations = 0;

// The numbers of the allocations that are refused: from the first up to the second.
constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> firstRefused = kNone;
std::atomic<std::size_t> endRefused = kNone;
std::atomic<std::size_t> asked = 0;

std::atomic<bool> isPeakWatched = false;
std::size_t peak = 0;

std::size_t heapInUse() noexcept {
  const struct mallinfo2 info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

bool isRefused(std::size_t size) noexcept {
  if (isPeakWatched) {
    peak = std::max(peak, heapInUse() + size);
  }
  const std::size_t number = asked++;
  return number >= firstRefused && number < endRefused;
}

}  // namespace

std::size_t allocationsSoFar() noexcept {
  return allocations;
}

RefusedAllocations::RefusedAllocations(std::size_t granted, Extent extent) noexcept {
  asked = 0;
  endRefused = extent == Extent::one ? granted + 1 : kNone;
  firstRefused = granted;
}

RefusedAllocations::~RefusedAllocations() {
  firstRefused = kNone;
}

bool RefusedAllocations::anyWas() noexcept {
  return asked > firstRefused;
}

HeapPeak::HeapPeak() noexcept : before_(heapInUse()) {
  peak = before_;
  isPeakWatched = true;
}

HeapPeak::~HeapPeak() {
  isPeakWatched = false;
}

std::size_t HeapPeak::bytes() const noexcept {
  return peak - before_;
}

}  // namespace orvanta::test

// The other forms of both lead here, but for those of over-aligned types, of which there are none.
void* operator new(std::size_t size) {
  ++orvanta::test::allocations;
  void* memory = orvanta::test::isRefused(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

// AddressSanitizer has one of its own, which does not.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

// What the library allocates without `new`: the memory of files and tables.
extern "C" int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
  const std::size_t whole = (size + alignment - 1) / alignment * alignment;
  *memory = orvanta::test::isRefused(size) ? nullptr : std::aligned_alloc(alignment, whole);
  return *memory == nullptr ? ENOMEM : 0;
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept {
  using Realloc = void* (*)(void*, std::size_t);
  static const auto next = reinterpret_cast<Realloc>(dlsym(RTLD_NEXT, "realloc"));
  return orvanta::test::isRefused(size) ? nullptr : next(memory, size);
}
