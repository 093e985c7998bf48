#include <string_view>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/LanguagePart.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>

namespace orvanta::localizationUtilities {

using platform::TextAlignment;

namespace {

bool hasCustomFont(std::string_view language) {
  return language == arabicCode;
}

}  // namespace

FontHandle ovFontForLocale(const String& locale, const FontHandle& baseFont) {
  if (baseFont == nullptr || !hasCustomFont(languagePart(locale.view()))) {
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
  return hasCustomFont(language.view());
}

bool languageAlignmentIsReversed(const String& language) {
  return platform::Platform::current().locales->characterDirectionForLanguage(language) ==
         platform::LanguageDirection::rightToLeft;
}

}  // namespace orvanta::localizationUtilities
