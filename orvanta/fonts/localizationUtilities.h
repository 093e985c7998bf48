#pragma once

#include <memory>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>
#include <orvanta/platform/FontSystem.h>
#include <orvanta/platform/TextAlignment.h>
#include <orvanta/text/String.h>

/// The fonts and the alignment that texts get in the current language.
///
/// Applications call the makers whose names begin with `ov` instead of the platform's own, so that
/// their texts are in the Arabic faces while the application runs in Arabic. An absent font comes
/// out absent: nothing stands in for it. To be used on the user-interface thread.
namespace orvanta::localizationUtilities {

/// A font, or null for an absent one.
using FontHandle = std::shared_ptr<const platform::Font>;

// ── Making fonts ─────────────────────────────────────────────────────────────────────────────

/// The named font, for the first current locale. A font with "icon" in its name, in any letter
/// case, is for pictures and is never replaced.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovFontWithName(const String& name, double size);

/// The system font for the first current locale; regular where no weight is given.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovSystemFontOfSize(double size);
/// The same in another weight.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovSystemFontOfSize(double size,
                                                           platform::FontWeight weight);
/// The same in bold.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovBoldSystemFontOfSize(double size);

/// An italic rendition of `ovSystemFontOfSize`, of the regular Arabic face too.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovItalicSystemFontOfSize(double size);

/// False for an absent font.
[[nodiscard]] ORVANTA_EXPORT bool ovFontIsBold(const FontHandle& font);
/// False for an absent font.
[[nodiscard]] ORVANTA_EXPORT bool ovFontIsItalic(const FontHandle& font);

// ── Per locale ───────────────────────────────────────────────────────────────────────────────

/// `baseFont` itself, or for Arabic the Arabic face of its size that is bold when it is. The base
/// font's family, its slant and its other weights are lost in that.
[[nodiscard]] ORVANTA_EXPORT FontHandle ovFontForLocale(const String& locale,
                                                        const FontHandle& baseFont);

/// `baseAlignment` with left and right exchanged where the locale's language is written from right
/// to left. The platform's data decide, which know more such languages (Persian, say) than
/// `Localizer::rightToLeftOrientationForLocale`.
[[nodiscard]] ORVANTA_EXPORT platform::TextAlignment ovAlignmentForLocale(
    const String& locale, platform::TextAlignment baseAlignment);

/// Both take a bare language, as `Localizer::languageOnlyFromString` gives it.
[[nodiscard]] ORVANTA_EXPORT bool languageHasCustomFont(const String& language);
/// Whether the platform writes it from right to left; a bare language too.
[[nodiscard]] ORVANTA_EXPORT bool languageAlignmentIsReversed(const String& language);

// ── The Arabic faces ─────────────────────────────────────────────────────────────────────────

/// The two faces at 17 points, each loaded at the first request that the platform has a font for
/// and from then on the same object for the life of the process. Absent while it has none.
[[nodiscard]] ORVANTA_EXPORT FontHandle corbetSansKufiArabicFont();
/// The same in bold.
[[nodiscard]] ORVANTA_EXPORT FontHandle corbetSansKufiArabicBoldFont();

/// One of the two faces at a size in points. Absent while there is none.
[[nodiscard]] ORVANTA_EXPORT FontHandle ArabicFontWithSize(double size, bool bold);

/// Registers the font file of this name (without ".ttf") from the library's own resources; the main
/// bundle is not searched. Does nothing when there is no such file or it is registered already.
ORVANTA_EXPORT void ovLoadFontNamed(const String& name);

}  // namespace orvanta::localizationUtilities
