#pragma once

#include <QFont>
#include <memory>

#include <orvanta/platform/FontSystem.h>
#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// A font of Qt's as one of the library's. It keeps which of its properties were set and which are
/// inherited, so that a widget that gets its own font back goes on following its parent.
[[nodiscard]] ORVANTA_QT_EXPORT std::shared_ptr<const platform::Font> fontHandle(const QFont& font);

/// The library's font as one of Qt's: the default font for an absent one.
[[nodiscard]] ORVANTA_QT_EXPORT QFont toQFont(const std::shared_ptr<const platform::Font>& font);

/// The fonts of Qt's font database. Where no font file says otherwise, a face's PostScript name is
/// its family without blanks and, unless it is the regular one, "-" and its style
/// ("NotoSans-Bold"). Gives no font, and registers none, as long as there is no application object.
[[nodiscard]] ORVANTA_QT_EXPORT std::shared_ptr<platform::FontSystem> makeQtFonts();

}  // namespace orvanta::qt
