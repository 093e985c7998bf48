#include <algorithm>
#include <bit>

#include <orvanta/fonts/DerivedFonts.h>

namespace orvanta::localizationUtilities {

FontHandle DerivedFonts::known(std::uint64_t sizeBits) const {
  const auto font = std::find_if(derived_.begin(), derived_.end(),
                                 [&](const auto& each) { return each.first == sizeBits; });
  return font == derived_.end() ? nullptr : font->second;
}

FontHandle DerivedFonts::fontWithSize(const FontHandle& face, double size) {
  const auto sizeBits = std::bit_cast<std::uint64_t>(size);
  {
    const std::lock_guard lock(mutex_);
    if (FontHandle font = known(sizeBits)) {
      return font;
    }
  }
  // Without the lock: the face belongs to the platform.
  FontHandle font = face->fontWithSize(size);
  const std::lock_guard lock(mutex_);
  if (FontHandle other = known(sizeBits)) {
    return other;
  }
  if (font != nullptr && derived_.size() < kMostSizes) {
    derived_.emplace_back(sizeBits, font);
  }
  return font;
}

}  // namespace orvanta::localizationUtilities
