#include "contenders/LabelWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <iterator>

namespace orvanta::bench::qt {

namespace {

constexpr int kColumns = 8;
constexpr int kWidth = 160;
constexpr int kHeight = 20;

}  // namespace

LabelWindow::LabelWindow(Arrangement arrangement) {
  if (arrangement == Arrangement::layout) {
    grid_ = new QGridLayout(this);
  }
}

void LabelWindow::place(QLabel* label) {
  const int row = placed_ / kColumns;
  const int column = placed_ % kColumns;
  ++placed_;
  if (grid_ != nullptr) {
    grid_->addWidget(label, row, column);
  } else {
    label->setGeometry(column * kWidth, row * kHeight, kWidth, kHeight);
    resize(kColumns * kWidth, (row + 1) * kHeight);
  }
}

void LabelWindow::settle() {
  do {
    QCoreApplication::processEvents();
  } while (isVisible() && !painted_);
}

void LabelWindow::paintEvent(QPaintEvent* /*event*/) {
  painted_ = true;
}

PaintedTexts::PaintedTexts(const std::vector<QLabel*>& labels)
    : labels_(labels), texts_(labels.size()) {
  for (QLabel* label : labels) {
    label->installEventFilter(this);
  }
}

bool PaintedTexts::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    const auto label = std::find(labels_.begin(), labels_.end(), watched);
    texts_[static_cast<std::size_t>(std::distance(labels_.begin(), label))] = (*label)->text();
  }
  return false;
}

}  // namespace orvanta::bench::qt
