#include "harness/Heap.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

#include <malloc.h>

// The C library's functions under the names that it provides for replacements of the public ones.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace orvanta::bench::heap {

namespace {

std::atomic<bool> counting{false};
std::atomic<std::uint64_t> allocations{0};
std::atomic<std::int64_t> keptBytes{0};

// The heap stores one word with each block.
std::int64_t bytesOf(void* block) noexcept {
  return block == nullptr
             ? 0
             : static_cast<std::int64_t>(malloc_usable_size(block) + sizeof(std::size_t));
}

bool isCounting() noexcept {
  return counting.load(std::memory_order_relaxed);
}

void* counted(void* block) noexcept {
  if (isCounting() && block != nullptr) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    keptBytes.fetch_add(bytesOf(block), std::memory_order_relaxed);
  }
  return block;
}

void countGone(void* block) noexcept {
  if (isCounting()) {
    keptBytes.fetch_sub(bytesOf(block), std::memory_order_relaxed);
  }
}

void* countedAgain(void* block, std::size_t size) noexcept {
  if (!isCounting()) {
    return __libc_realloc(block, size);
  }
  const std::int64_t before = bytesOf(block);
  void* moved = __libc_realloc(block, size);
  // A failure leaves the old block; a size of 0 frees it.
  if (moved != nullptr || size == 0) {
    keptBytes.fetch_sub(before, std::memory_order_relaxed);
  }
  return counted(moved);
}

}  // namespace

void startCounting() noexcept {
  allocations = 0;
  keptBytes = 0;
  counting = true;
}

Traffic stopCounting() noexcept {
  counting = false;
  return {allocations, keptBytes};
}

}  // namespace orvanta::bench::heap

#define ORVANTA_BENCH_REPLACES extern "C" __attribute__((visibility("default")))

namespace heap = orvanta::bench::heap;

ORVANTA_BENCH_REPLACES void* malloc(std::size_t size) {
  return heap::counted(__libc_malloc(size));
}

ORVANTA_BENCH_REPLACES void* calloc(std::size_t count, std::size_t size) {
  return heap::counted(__libc_calloc(count, size));
}

ORVANTA_BENCH_REPLACES void* realloc(void* block, std::size_t size) {
  return heap::countedAgain(block, size);
}

ORVANTA_BENCH_REPLACES void* reallocarray(void* block, std::size_t count, std::size_t size) {
  std::size_t bytes = 0;
  if (__builtin_mul_overflow(count, size, &bytes)) {
    errno = ENOMEM;
    return nullptr;
  }
  return heap::countedAgain(block, bytes);
}

ORVANTA_BENCH_REPLACES void* memalign(std::size_t alignment, std::size_t size) {
  return heap::counted(__libc_memalign(alignment, size));
}

ORVANTA_BENCH_REPLACES void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return heap::counted(__libc_memalign(alignment, size));
}

ORVANTA_BENCH_REPLACES int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
  void* made = heap::counted(__libc_memalign(alignment, size));
  if (made == nullptr) {
    return ENOMEM;
  }
  *block = made;
  return 0;
}

ORVANTA_BENCH_REPLACES void free(void* block) {
  heap::countGone(block);
  __libc_free(block);
}
