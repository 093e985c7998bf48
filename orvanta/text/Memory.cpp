#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include <sys/mman.h>

#include <orvanta/text/Memory.h>

namespace orvanta {

namespace {

constexpr std::size_t kCacheLine = 64;
constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;  // The size on most systems.
// Smaller blocks would waste most of a huge page.
constexpr std::size_t kHugePageThreshold = std::size_t{1024} * 1024;
// The size on most systems. Advice for another size is refused, or given for parts of pages.
constexpr std::uintptr_t kPage = 4096;
// For fewer pages a call is not worth it.
constexpr std::uintptr_t kFewPages = 4;
constexpr std::size_t kMostProvided = std::size_t{16} * 1024 * 1024;
// A remainder below this stands in small pages: clearing a huge page takes about as long as
// clearing so many bytes page by page.
constexpr std::size_t kRemainderWorthHugePage = std::size_t{256} * 1024;

// `std::aligned_alloc` may refuse sizes that are no multiple of the alignment.
char* allocateAligned(std::size_t alignment, std::size_t size) noexcept {
  void* bytes = nullptr;
  return posix_memalign(&bytes, alignment, std::max<std::size_t>(size, 1)) == 0
             ? static_cast<char*>(bytes)
             : nullptr;
}

}  // namespace

char* allocateBytes(std::size_t size) noexcept {
  if (size > static_cast<std::size_t>(PTRDIFF_MAX) - kHugePage) {
    return nullptr;
  }
  if (size < kHugePageThreshold) {
    return allocateAligned(kCacheLine, size);
  }
  const std::size_t remainder = size % kHugePage;
  const std::size_t inHugePages =
      size - remainder + (remainder > kRemainderWorthHugePage ? kHugePage : 0);
  char* const bytes = allocateAligned(kHugePage, std::max(inHugePages, size));
#ifdef MADV_HUGEPAGE
  if (bytes != nullptr) {
    // Advice only: when it is refused, the pages are small.
    static_cast<void>(madvise(bytes, inHugePages, MADV_HUGEPAGE));
  }
#endif
  return bytes;
}

void providePages([[maybe_unused]] char* bytes, [[maybe_unused]] std::size_t size) noexcept {
#ifdef MADV_POPULATE_WRITE
  const auto begin = (reinterpret_cast<std::uintptr_t>(bytes) + kPage - 1) / kPage * kPage;
  const auto end =
      (reinterpret_cast<std::uintptr_t>(bytes) + std::min(size, kMostProvided)) / kPage * kPage;
  if (begin < end && end - begin >= kFewPages * kPage) {
    // Advice only: where it is refused or unknown, the pages come when they are touched.
    static_cast<void>(madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE));
  }
#endif
}

}  // namespace orvanta
