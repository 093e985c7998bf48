#pragma once

#include <cstddef>

namespace orvanta::test {

/// How often this program has asked for memory with `new` so far, on any thread.
[[nodiscard]] std::size_t allocationsSoFar() noexcept;

}  // namespace orvanta::test
