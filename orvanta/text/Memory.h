#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace orvanta {

/// `size` bytes of the C heap, not initialised, to be released with `std::free` or resized with
/// `std::realloc`; null when memory is short. They begin at a cache line: systems copy files faster
/// to such addresses. Thread-safe.
///
/// For large sizes the system is asked for huge pages: with small ones, reading a table of 10,000
/// strings takes some 15 % longer (benchmark rows `load-utf16`, `load-utf8`).
[[nodiscard]] char* allocateBytes(std::size_t size) noexcept;

/// Asks the system for the pages of memory that is about to be filled, all in one call where it can
/// do that: page faults at the first accesses take twice as long (benchmark rows `load-500` to
/// `load-5k`). Provides the first 16 MiB alone: a size may be a wrong guess. Thread-safe.
void providePages(char* bytes, std::size_t size) noexcept;

/// The deleter of `Bytes`.
struct FreeBytes {
  void operator()(char* bytes) const noexcept { std::free(bytes); }
};
/// An owner of such bytes.
using Bytes = std::unique_ptr<char[], FreeBytes>;

}  // namespace orvanta
