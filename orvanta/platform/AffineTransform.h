#pragma once

namespace orvanta::platform {

/// A two-dimensional affine map: (x, y) goes to (a*x + c*y + tx, b*x + d*y + ty).
struct AffineTransform {
  /// The factor of x in the new x.
  double a = 1;
  /// The factor of x in the new y.
  double b = 0;
  /// The factor of y in the new x.
  double c = 0;
  /// The factor of y in the new y.
  double d = 1;
  /// Added to x.
  double tx = 0;
  /// Added to y.
  double ty = 0;

  /// Maps every point to itself, as a default-made transform does.
  [[nodiscard]] static constexpr AffineTransform identity() noexcept { return {}; }
  /// Multiplies the coordinates by `x` and `y`; negative factors mirror.
  [[nodiscard]] static constexpr AffineTransform makeScale(double x, double y) noexcept {
    return {x, 0, 0, y, 0, 0};
  }

  /// Equality of all six numbers.
  friend constexpr bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

}  // namespace orvanta::platform
