#include "Pictures.h"

#include <QPainter>
#include <algorithm>

namespace ovaudit {

bool savePicture(QImage window, const QList<Finding>& findings, const QString& file) {
  constexpr int kGap = 2;
  QPainter painter(&window);
  painter.setFont(QFont(QStringLiteral("sans-serif"), 7));
  QRect lastLabel;
  QRect lastFrame;
  for (const Finding& finding : findings) {
    if (finding.frame.isEmpty()) {
      continue;
    }
    const QRect frame = finding.frame.adjusted(-kGap, -kGap, kGap, kGap);
    painter.setPen(QPen(Qt::red, 1.5));
    painter.drawRect(frame);
    QRect label = painter.fontMetrics().boundingRect(finding.rule).adjusted(-kGap, 0, kGap, 0);
    label.moveBottomLeft(frame.topLeft());
    label.moveTop(std::max(label.top(), 0));
    if (frame == lastFrame) {
      label.moveLeft(lastLabel.right() + kGap);
    }
    lastFrame = frame;
    lastLabel = label;
    painter.fillRect(label, Qt::red);
    painter.setPen(Qt::white);
    painter.drawText(label, Qt::AlignCenter, finding.rule);
  }
  painter.end();
  return window.save(file);
}

}  // namespace ovaudit
