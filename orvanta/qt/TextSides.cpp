#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/qt/TextSides.h>

namespace orvanta::qt {

using platform::TextAlignment;

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

Qt::Alignment alignmentFor(TextAlignment side, const QWidget& widget) {
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
      return (textBeginsAtRight(widget) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
  }
}

}  // namespace orvanta::qt
