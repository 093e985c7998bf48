#pragma once

#include <QFont>

namespace orvanta::qt {

/// Those of `properties` for which both fonts have the same value. They are QFont's resolve mask,
/// one a bit.
[[nodiscard]] inline uint agreement(uint properties, QFont font, const QFont& other) {
  uint same = 0;
  for (uint property = 1; property <= properties; property <<= 1U) {
    if ((property & properties) != 0) {
      font.setResolveMask(property);
      same |= font.resolve(other) == other ? property : 0U;
    }
  }
  return same;
}

/// `rest` with those of `properties` that `font` has, and which are set in the result.
[[nodiscard]] inline QFont withProperties(uint properties, QFont font, const QFont& rest) {
  font.setResolveMask(properties);
  QFont both = font.resolve(rest);
  both.setResolveMask(properties | rest.resolveMask());
  return both;
}

}  // namespace orvanta::qt
