#pragma once

#include <orvanta/qt/Export.h>

class QWidget;

namespace orvanta::qt {

/// Whether the current language is written from right to left, by the data that exchange the sides
/// of texts, so that layouts and the texts in them agree. Not, where there is no current language.
/// Main thread.
[[nodiscard]] ORVANTA_QT_EXPORT bool currentLanguageIsRightToLeft();

/// Whether a text without a side of its own begins at the right of the widget: the direction that
/// was set on the widget or on a widget around it in its window, else the current language's.
[[nodiscard]] bool textBeginsAtRight(const QWidget& widget);

}  // namespace orvanta::qt
