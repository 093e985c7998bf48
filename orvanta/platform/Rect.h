#pragma once

namespace orvanta::platform {

/// A rectangle: its origin in the coordinates of its parent, and its size, in the toolkit's units.
struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace orvanta::platform
