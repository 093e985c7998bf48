#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>

namespace orvanta::localizationUtilities {

namespace {

FontHandle fontForCurrentLocale(const FontHandle& font) {
  const StringList& locales = Localizer::sharedLocalizer().currentLocales();
  return locales.empty() ? font : ovFontForLocale(locales.front(), font);
}

bool isIconFontName(const String& name) {
  const String lowerCased = platform::Platform::current().locales->lowercaseString(name);
  return lowerCased.view().find("icon") != std::string_view::npos;
}

bool hasTrait(const FontHandle& font, platform::SymbolicTraits trait) {
  return font != nullptr && (font->symbolicTraits() & trait) != 0;
}

}  // namespace

FontHandle ovFontWithName(const String& name, double size) {
  FontHandle font = platform::Platform::current().fonts->fontWithName(name, size);
  return isIconFontName(name) ? font : fontForCurrentLocale(font);
}

FontHandle ovSystemFontOfSize(double size) {
  return ovSystemFontOfSize(size, platform::kFontWeightRegular);
}

FontHandle ovSystemFontOfSize(double size, platform::FontWeight weight) {
  return fontForCurrentLocale(platform::Platform::current().fonts->systemFontOfSize(size, weight));
}

FontHandle ovBoldSystemFontOfSize(double size) {
  return ovSystemFontOfSize(size, platform::kFontWeightBold);
}

FontHandle ovItalicSystemFontOfSize(double size) {
  const FontHandle font = ovSystemFontOfSize(size);
  return font == nullptr ? nullptr : font->fontWithSymbolicTraits(platform::kItalicTrait);
}

bool ovFontIsBold(const FontHandle& font) {
  return hasTrait(font, platform::kBoldTrait);
}

bool ovFontIsItalic(const FontHandle& font) {
  return hasTrait(font, platform::kItalicTrait);
}

}  // namespace orvanta::localizationUtilities
