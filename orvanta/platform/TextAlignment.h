#pragma once

#include <cstdint>

namespace orvanta::platform {

/// The alignment of lines of text. Values without a name are legal and pass through the library
/// unchanged.
enum class TextAlignment : std::int64_t {
  left = 0,
  center = 1,
  right = 2,
  justified = 3,
  natural = 4,  ///< The side on which the text's own language begins.
};

}  // namespace orvanta::platform
