#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include <sys/mman.h>

#include <orvanta/text/Memory.h>

namespace orvanta {

namespace {

constexpr std::size_t kCacheLine = 64;
constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;  // As most systems have them.
// Less is not worth what is left over of a large page, though the owner may give that back.
constexpr std::size_t kMany = std::size_t{1024} * 1024;
// Clearing a large page takes as long as handing out so many bytes in small ones, about.
constexpr std::size_t kWorthAnotherPage = std::size_t{256} * 1024;

// Not by `std::aligned_alloc`, which may refuse sizes that are no multiple of the alignment.
char* allocateAligned(std::size_t alignment, std::size_t size) noexcept {
  void* bytes = nullptr;
  return posix_memalign(&bytes, alignment, std::max<std::size_t>(size, 1)) == 0
             ? static_cast<char*>(bytes)
             : nullptr;
}

}  // namespace

char* allocateBytes(std::size_t size) noexcept {
  if (size > static_cast<std::size_t>(PTRDIFF_MAX) - kLargePage) {
    return nullptr;
  }
  if (size < kMany) {
    return allocateAligned(kCacheLine, size);
  }
  const std::size_t rest = size % kLargePage;
  const std::size_t inLargePages = size - rest + (rest > kWorthAnotherPage ? kLargePage : 0);
  char* const bytes = allocateAligned(kLargePage, std::max(inLargePages, size));
#ifdef MADV_HUGEPAGE
  if (bytes != nullptr) {
    // A wish: where it is refused the pages are small ones.
    static_cast<void>(madvise(bytes, inLargePages, MADV_HUGEPAGE));
  }
#endif
  return bytes;
}

}  // namespace orvanta
