#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the fuzz targets share.
namespace orvanta::fuzz {

/// Defined by each target, and called with each input.
void feed(std::string_view input);

/// Aborts the process unless the promise holds.
inline void require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
  }
}

/// Removes the next piece from the input. Pieces end with a byte that is invalid in UTF-8.
inline std::string_view takePiece(std::string_view& input) {
  const std::string_view piece = input.substr(0, input.find('\xFF'));
  input.remove_prefix(std::min(piece.size() + 1, input.size()));
  return piece;
}

}  // namespace orvanta::fuzz
