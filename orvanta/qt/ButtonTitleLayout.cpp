#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include <orvanta/qt/ButtonTitleLayout.h>

namespace orvanta::qt {

namespace {

// The pixels that Qt's styles leave between icon and title.
constexpr int kIconGap = 4;

QSize textSize(const QPushButton& button, const QString& title) {
  return button.fontMetrics().size(Qt::TextShowMnemonic, title);
}

// The rectangle for icon and title: the contents without the menu indicator, whose width styles
// subtract only when they draw the title.
QRect placeOfTitle(const QPushButton& button, const QStyleOptionButton& option) {
  const QRect contents =
      button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
  if (!option.features.testFlag(QStyleOptionButton::HasMenu)) {
    return contents;
  }
  const int indicator =
      button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
  return option.direction == Qt::RightToLeft ? contents.adjusted(indicator, 0, 0, 0)
                                             : contents.adjusted(0, 0, -indicator, 0);
}

// The rectangle that puts icon and title at `side`. Styles center the two in the rectangle that
// they are given, so it is only as wide as the two and the style's margin.
QRect titleRect(const QPushButton& button, const QStyleOptionButton& option, Qt::Alignment side) {
  constexpr int kLeastMargin = 2;
  const QRect place = placeOfTitle(button, option);
  const int margin = button.style()->pixelMetric(QStyle::PM_ButtonMargin, &option, &button);
  int width = textSize(button, option.text).width() + std::max(margin, kLeastMargin);
  if (!option.icon.isNull()) {
    width += option.icon.actualSize(option.iconSize).width() + kIconGap;
  }
  return QStyle::alignedRect(Qt::LeftToRight, side | Qt::AlignVCenter,
                             QSize(std::min(width, place.width()), place.height()), place);
}

}  // namespace

QSize sizeHintWithTitle(const QPushButton& button, QStyleOptionButton option) {
  QSize size = textSize(button, option.text);
  if (!option.icon.isNull()) {
    size = QSize(size.width() + option.iconSize.width() + kIconGap,
                 std::max(size.height(), option.iconSize.height()));
  }
  option.rect.setSize(size);
  if (option.features.testFlag(QStyleOptionButton::HasMenu)) {
    size.rwidth() += button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
  }
  return button.style()->sizeFromContents(QStyle::CT_PushButton, &option, size, &button);
}

void paintWithTitleAtSide(const QPushButton& button, const QStyleOptionButton& option,
                          Qt::Alignment side, QStylePainter& painter) {
  QStyleOptionButton frame = option;
  frame.text.clear();
  frame.icon = QIcon();
  painter.drawControl(QStyle::CE_PushButton, frame);
  QStyleOptionButton title = option;
  title.features.setFlag(QStyleOptionButton::HasMenu, false);
  title.rect = titleRect(button, option, side);
  painter.drawControl(QStyle::CE_PushButtonLabel, title);
}

}  // namespace orvanta::qt
