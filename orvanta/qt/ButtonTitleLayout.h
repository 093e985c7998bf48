#pragma once

#include <QSize>
#include <Qt>

class QPushButton;
class QStyleOptionButton;
class QStylePainter;

namespace orvanta::qt {

/// The size hint that QPushButton would have with the title in `option`.
[[nodiscard]] QSize sizeHintWithTitle(const QPushButton& button, QStyleOptionButton option);

/// Draws a button with icon and title at `side`, left or right.
void paintWithTitleAtSide(const QPushButton& button, const QStyleOptionButton& option,
                          Qt::Alignment side, QStylePainter& painter);

}  // namespace orvanta::qt
