#include <orvanta/fonts/ResourceFace.h>
#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::localizationUtilities {

namespace {

ResourceFace& regularFace() {
  static NoDestructor<ResourceFace> face("CorbetSansKufiArabic-Regular"_s,
                                         "CorbetSansKufiArabic"_s);
  return *face;
}

ResourceFace& boldFace() {
  static NoDestructor<ResourceFace> face("CorbetSansKufiArabic-Bold"_s,
                                         "CorbetSansKufiArabic-Bold"_s);
  return *face;
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
