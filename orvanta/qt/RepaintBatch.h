#pragma once

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

class QWidget;

namespace orvanta::qt {

/// Repaints a window with many localized widgets once at a change of language, instead of once for
/// each widget: it marks the whole window for repainting before the widgets change.
///
/// Make it before the window's localized widgets are awakened, because observers are called in the
/// order of their registration. `window` must outlive it.
class ORVANTA_QT_EXPORT RepaintBatch {
 public:
  /// Starts to observe changes of language.
  explicit RepaintBatch(QWidget& window);

 private:
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
