#include <orvanta/fonts/ResourceFace.h>
#include <orvanta/fonts/localizationUtilities.h>

namespace orvanta::localizationUtilities {

namespace {

// Never freed: the faces serve until the process ends, also while static objects are destroyed.
ResourceFace& regularFace() {
  static auto& face = *new ResourceFace("CorbetSansKufiArabic-Regular"_s, "CorbetSansKufiArabic"_s);
  return face;
}

ResourceFace& boldFace() {
  static auto& face =
      *new ResourceFace("CorbetSansKufiArabic-Bold"_s, "CorbetSansKufiArabic-Bold"_s);
  return face;
}

}  // namespace

FontHandle corbetSansKufiArabicFont() {
  return regularFace().font();
}

FontHandle corbetSansKufiArabicBoldFont() {
  return boldFace().font();
}

FontHandle ArabicFontWithSize(double size, bool bold) {
  return (bold ? boldFace() : regularFace()).fontWithSize(size);
}

}  // namespace orvanta::localizationUtilities
