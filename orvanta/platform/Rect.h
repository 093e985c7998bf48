#pragma once

namespace orvanta::platform {

/// A rectangle: its origin in the coordinates of its parent, and its size, in the toolkit's units.
struct Rect {
  /// The origin, across.
  double x = 0;
  /// The origin, upwards or downwards as the toolkit counts.
  double y = 0;
  /// The size, across.
  double width = 0;
  /// The size, the other way.
  double height = 0;

  /// Equality of all four numbers.
  friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace orvanta::platform
