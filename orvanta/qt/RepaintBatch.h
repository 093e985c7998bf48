#pragma once

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

class QWidget;

namespace orvanta::qt {

/// Spares a window with many localized widgets one repaint for each of them at a change of
/// language: the whole window is marked for repainting first, and what changes in it then adds
/// nothing.
///
/// To be made before the localized widgets of the window are awakened, since observers are told in
/// order. `window` must outlive it.
class ORVANTA_QT_EXPORT RepaintBatch {
 public:
  /// Observes from now on.
  explicit RepaintBatch(QWidget& window);

 private:
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
