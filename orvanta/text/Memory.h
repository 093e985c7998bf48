#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace orvanta {

/// When the system provides the pages of new memory.
enum class Pages {
  whenTouched,  ///< Each at the first access, as usual. For memory that may not be used whole.
  atOnce,       ///< All in one call where the system can, which takes half the time for each page.
                ///< For memory that is about to be filled; see the benchmark's rows `load-500` to
                ///< `load-5k`.
};

/// `size` bytes of the C heap, not initialised, to be released with `std::free` or resized with
/// `std::realloc`; null when memory is short. They begin at a cache line: systems copy files faster
/// to such addresses. Thread-safe.
///
/// For large sizes the system is asked for huge pages. New memory is cleared page by page as it is
/// first touched, which with small pages took more time than all the rest of reading a table.
[[nodiscard]] char* allocateBytes(std::size_t size, Pages pages = Pages::whenTouched) noexcept;

/// The deleter of `Bytes`.
struct FreeBytes {
  void operator()(char* bytes) const noexcept { std::free(bytes); }
};
/// An owner of such bytes.
using Bytes = std::unique_ptr<char[], FreeBytes>;

}  // namespace orvanta
