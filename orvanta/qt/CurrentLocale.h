#pragma once

#include <QLocale>

namespace orvanta::qt {

/// What Qt knows of the first of the current locales; `QLocale::c()` where there is none, or Qt
/// does not know its language. Main thread.
[[nodiscard]] QLocale currentLocale();

}  // namespace orvanta::qt
