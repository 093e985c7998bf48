#include <QWidget>

#include <orvanta/platform/qt/RepaintBatch.h>

namespace orvanta::qt {

RepaintBatch::RepaintBatch(QWidget& window) : observer_([&window] { window.update(); }) {}

}  // namespace orvanta::qt
