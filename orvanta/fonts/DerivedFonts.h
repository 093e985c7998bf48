#pragma once

#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

#include <orvanta/fonts/localizationUtilities.h>

namespace orvanta::localizationUtilities {

/// The sizes of one face, each derived at its first request, so that ten thousand labels of a size
/// share one font. An application draws in few sizes: what goes beyond is derived at every request.
/// Thread-safe.
class DerivedFonts {
 public:
  /// `face`, which must be present and the same at every call, at this size. What the platform
  /// cannot derive is absent, and asked for again.
  [[nodiscard]] FontHandle fontWithSize(const FontHandle& face, double size);

 private:
  static constexpr std::size_t kMostSizes = 16;

  [[nodiscard]] FontHandle known(std::uint64_t sizeBits) const;

  std::mutex mutex_;
  // Sizes are told apart by their bits, so that a size that is no number is a size like any other.
  std::vector<std::pair<std::uint64_t, FontHandle>> derived_;
};

}  // namespace orvanta::localizationUtilities
