#include <QWidget>

#include <orvanta/qt/RepaintBatch.h>

namespace orvanta::qt {

namespace {

// Not with `QWidget::update`: Qt would paint the window and, once more, each widget in it that
// calls `update` afterwards. When a child is hidden, the area behind it is marked as exposed at
// once, and Qt does not mark the widgets in an exposed area again.
void markWholeWindow(QWidget& window) {
  if (!window.isVisible()) {
    return;
  }
  QWidget cover(&window);
  cover.setAttribute(Qt::WA_TransparentForMouseEvents);
  cover.setGeometry(window.rect());
  cover.show();
  cover.hide();
}

}  // namespace

RepaintBatch::RepaintBatch(QWidget& window) : observer_([&window] { markWholeWindow(window); }) {}

}  // namespace orvanta::qt
