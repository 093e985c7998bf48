#pragma once

#include <array>
#include <atomic>
#include <cstdint>

#include <orvanta/fonts/localizationUtilities.h>

namespace orvanta::localizationUtilities {

/// The sizes of one face, each derived at its first request, so that ten thousand labels of a size
/// share one font. An application draws in few sizes: what goes beyond is derived at every request.
///
/// From any thread and without a lock: what is remembered stays, unchanged.
class DerivedFonts {
 public:
  DerivedFonts() = default;
  DerivedFonts(const DerivedFonts&) = delete;
  DerivedFonts& operator=(const DerivedFonts&) = delete;
  ~DerivedFonts();

  /// `face`, which must be present and the same at every call, at this size. What the platform
  /// cannot derive is absent, and asked for again.
  [[nodiscard]] FontHandle fontWithSize(const FontHandle& face, double size);

 private:
  // Sizes are told apart by their bits, so that a size that is no number is a size like any other.
  struct Derived {
    std::uint64_t sizeBits;
    FontHandle font;
  };

  static constexpr std::size_t kMostSizes = 16;
  std::array<std::atomic<const Derived*>, kMostSizes> derived_{};
};

}  // namespace orvanta::localizationUtilities
