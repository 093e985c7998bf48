#include <bit>
#include <memory>

#include <orvanta/fonts/DerivedFonts.h>

namespace orvanta::localizationUtilities {

DerivedFonts::~DerivedFonts() {
  for (const auto& slot : derived_) {
    delete slot.load();
  }
}

FontHandle DerivedFonts::fontWithSize(const FontHandle& face, double size) {
  const auto sizeBits = std::bit_cast<std::uint64_t>(size);
  for (auto& slot : derived_) {
    const Derived* known = slot.load(std::memory_order_acquire);
    if (known == nullptr) {
      FontHandle font = face->fontWithSize(size);
      if (font == nullptr) {
        return nullptr;
      }
      auto made = std::make_unique<const Derived>(Derived{sizeBits, std::move(font)});
      if (slot.compare_exchange_strong(known, made.get(), std::memory_order_acq_rel)) {
        return made.release()->font;
      }
    }
    if (known->sizeBits == sizeBits) {
      return known->font;
    }
  }
  return face->fontWithSize(size);
}

}  // namespace orvanta::localizationUtilities
