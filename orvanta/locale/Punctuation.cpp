// The member functions of Localizer for punctuation and mirroring.
#include <string>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta {

String Localizer::stringWithLocalizedPunctuation(const String& text) const {
  if (preferredLocales_.empty() || languagePart(preferredLocales_.front()) != arabicCode ||
      text.view().find(',') == std::string_view::npos) {
    return text;
  }
  std::string localized;
  for (const char character : text.view()) {
    if (character == ',') {
      localized += arabicComma().view();
    } else {
      localized += character;
    }
  }
  return localized;
}

const String& Localizer::arabicComma() {
  static NoDestructor<const String> comma("\u060C"_s);
  return *comma;
}

platform::AffineTransform Localizer::transformForRightToLeft(bool mirrored) noexcept {
  return mirrored ? platform::AffineTransform::makeScale(-1, 1)
                  : platform::AffineTransform::identity();
}

}  // namespace orvanta
