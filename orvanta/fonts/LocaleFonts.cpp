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
  // Of what is not to be exchanged, most texts, the platform need not be asked how the language is
  // written.
  const bool hasSide =
      baseAlignment == TextAlignment::left || baseAlignment == TextAlignment::right;
  if (!hasSide || !languageAlignmentIsReversed(Localizer::languageOnlyFromString(locale))) {
    return baseAlignment;
  }
  return baseAlignment == TextAlignment::left ? TextAlignment::right : TextAlignment::left;
}

bool languageHasCustomFont(const String& language) {
  return language == arabicCode;
}

bool languageAlignmentIsReversed(const String& language) {
  return platform::Platform::current().locales->characterDirectionForLanguage(language) ==
         platform::LanguageDirection::rightToLeft;
}

}  // namespace orvanta::localizationUtilities
