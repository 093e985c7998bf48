#include <QWidget>

#include <orvanta/qt/RepaintBatch.h>

namespace orvanta::qt {

namespace {

// A window that was told to update would be painted apart from the widgets in it that are updated
// after it, and those twice. What a child uncovers when it is hidden is due at once instead: Qt
// does not list widgets in such a place any more.
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
