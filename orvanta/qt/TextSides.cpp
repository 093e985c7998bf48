#include <QGuiApplication>

#include <orvanta/qt/TextSides.h>

namespace orvanta::qt {

namespace {

using platform::TextAlignment;

Qt::Alignment horizontalFor(TextAlignment side) {
  switch (side) {
    case TextAlignment::left:
      return Qt::AlignLeft | Qt::AlignAbsolute;
    case TextAlignment::right:
      return Qt::AlignRight | Qt::AlignAbsolute;
    case TextAlignment::center:
      return Qt::AlignHCenter;
    case TextAlignment::justified:
      return Qt::AlignJustify;
    default:
      return horizontalFor(QGuiApplication::layoutDirection() == Qt::RightToLeft
                               ? TextAlignment::right
                               : TextAlignment::left);
  }
}

}  // namespace

TextAlignment textAlignmentOf(Qt::Alignment designed) {
  if (designed.testFlag(Qt::AlignHCenter)) {
    return TextAlignment::center;
  }
  if (designed.testFlag(Qt::AlignJustify)) {
    return TextAlignment::justified;
  }
  if (designed.testFlag(Qt::AlignRight)) {
    return TextAlignment::right;
  }
  return designed.testFlag(Qt::AlignLeft) && designed.testFlag(Qt::AlignAbsolute)
             ? TextAlignment::left
             : TextAlignment::natural;
}

Qt::Alignment alignmentFor(TextAlignment side, Qt::Alignment vertical) {
  return horizontalFor(side) | (vertical & Qt::AlignVertical_Mask);
}

}  // namespace orvanta::qt
