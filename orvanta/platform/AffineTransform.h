#pragma once

namespace orvanta::platform {

/// A two-dimensional affine map: (x, y) goes to (a*x + c*y + tx, b*x + d*y + ty).
struct AffineTransform {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double tx = 0;
  double ty = 0;

  /// Maps every point to itself, as a default-made transform does.
  [[nodiscard]] static constexpr AffineTransform identity() noexcept { return {}; }
  /// Multiplies the coordinates by `x` and `y`; negative factors mirror.
  [[nodiscard]] static constexpr AffineTransform makeScale(double x, double y) noexcept {
    return {x, 0, 0, y, 0, 0};
  }

  friend constexpr bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

}  // namespace orvanta::platform
