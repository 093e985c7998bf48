#include <algorithm>
#include <cstdint>

#include <sys/mman.h>

#include <orvanta/platform/standard/Memory.h>

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kCacheLine = 64;
constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;  // As most systems have them.
// Less is not worth what is left over of a large page, though the owner may give that back.
constexpr std::size_t kMany = std::size_t{1024} * 1024;
// Clearing a large page takes as long as handing out so many bytes in small ones, about.
constexpr std::size_t kWorthAnotherPage = std::size_t{256} * 1024;

std::size_t roundedUp(std::size_t size, std::size_t step) noexcept {
  return (std::max<std::size_t>(size, 1) + step - 1) / step * step;
}

}  // namespace

char* allocateBytes(std::size_t size) noexcept {
  if (size > static_cast<std::size_t>(PTRDIFF_MAX) - kLargePage) {
    return nullptr;
  }
  if (size < kMany) {
    return static_cast<char*>(std::aligned_alloc(kCacheLine, roundedUp(size, kCacheLine)));
  }
  const std::size_t whole = roundedUp(size, kLargePage);
  const std::size_t inLargePages =
      size + kLargePage - whole > kWorthAnotherPage ? whole : whole - kLargePage;
  auto* bytes = static_cast<char*>(std::aligned_alloc(kLargePage, std::max(inLargePages, size)));
#ifdef MADV_HUGEPAGE
  if (bytes != nullptr) {
    // A wish: where it is refused the pages are small ones.
    static_cast<void>(madvise(bytes, inLargePages, MADV_HUGEPAGE));
  }
#endif
  return bytes;
}

}  // namespace orvanta::platform::standard
