#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>

namespace orvanta::localizationUtilities {

using platform::TextAlignment;

FontHandle ovFontForLocale(const String& locale, const FontHandle& baseFont) {
  const String language = Localizer::languageOnlyFromString(locale);
  if (baseFont == nullptr || !languageHasCustomFont(language)) {
    return baseFont;
  }
  return ArabicFontWithSize(baseFont->pointSize(), ovFontIsBold(baseFont));
}

TextAlignment ovAlignmentForLocale(const String& locale, TextAlignment baseAlignment) {
  if (!languageAlignmentIsReversed(Localizer::languageOnlyFromString(locale))) {
    return baseAlignment;
  }
  switch (baseAlignment) {
    case TextAlignment::left:
      return TextAlignment::right;
    case TextAlignment::right:
      return TextAlignment::left;
    default:
      return baseAlignment;
  }
}

bool languageHasCustomFont(const String& language) {
  return language == arabicCode;
}

bool languageAlignmentIsReversed(const String& language) {
  return platform::Platform::current().locales->characterDirectionForLanguage(language) ==
         platform::LanguageDirection::rightToLeft;
}

}  // namespace orvanta::localizationUtilities
