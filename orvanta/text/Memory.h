#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

#include <orvanta/Export.h>

namespace orvanta {

/// Bytes of the C heap, for `std::realloc` and `std::free`, not initialized; null when there are
/// not so many. They begin on a line of the cache: systems copy files faster to there.
///
/// Where they are many, the system is asked to give them in large pages, if it has such. New memory
/// is handed out, cleared, page by page as it is first touched: reading a table took longer for
/// that than for all else.
[[nodiscard]] ORVANTA_EXPORT char* allocateBytes(std::size_t size) noexcept;

struct FreeBytes {
  void operator()(char* bytes) const noexcept { std::free(bytes); }
};
using Bytes = std::unique_ptr<char[], FreeBytes>;

}  // namespace orvanta
