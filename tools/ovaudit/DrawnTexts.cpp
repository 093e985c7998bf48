#include "DrawnTexts.h"

#include <QStyle>
#include <algorithm>

namespace ovaudit {

QRect DrawnText::rect() const {
  return QStyle::alignedRect(Qt::LeftToRight, side | Qt::AlignVCenter,
                             needed.boundedTo(place.size()), place);
}

QSize withoutLeading(QSize size, const QString& text, const QFontMetrics& metrics) {
  const QRect ink = metrics.tightBoundingRect(text).translated(0, metrics.ascent());
  const int blank = std::min(ink.top(), metrics.height() - (ink.top() + ink.height()));
  return size - QSize(0, 2 * std::max(blank, 0));
}

}  // namespace ovaudit
