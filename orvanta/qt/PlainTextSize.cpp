#include <QFontMetrics>
#include <QLabel>
#include <QMargins>

#include <orvanta/qt/PlainTextSize.h>

namespace orvanta::qt {

namespace {

bool hasOneSize(const QLabel& label) {
  return label.textFormat() == Qt::PlainText && !label.wordWrap() && label.buddy() == nullptr &&
         !label.alignment().testFlag(Qt::AlignJustify);
}

// QLabel's rule: without an indentation of its own, a label with a frame is indented.
int indentOf(const QLabel& label) {
  const int indent = label.indent();
  return indent < 0 && label.frameWidth() > 0
             ? label.fontMetrics().horizontalAdvance(QLatin1Char('x')) - 2 * label.margin()
             : indent;
}

QSize spaceAroundText(const QLabel& label) {
  QSize space(2 * label.margin(), 2 * label.margin());
  if (const int indent = indentOf(label); indent > 0) {
    const Qt::Alignment alignment = label.alignment();
    space += QSize((alignment & (Qt::AlignLeft | Qt::AlignRight)) != 0 ? indent : 0,
                   (alignment & (Qt::AlignTop | Qt::AlignBottom)) != 0 ? indent : 0);
  }
  const QMargins margins = label.contentsMargins();
  return space + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

}  // namespace

std::optional<QSize> PlainTextSize::hintFor(const QLabel& label) {
  if (label.text().isEmpty() || !hasOneSize(label)) {
    return std::nullopt;
  }
  return (textSize(label) + spaceAroundText(label)).expandedTo(label.minimumSize());
}

QSize PlainTextSize::textSize(const QLabel& label) {
  const QString text = label.text();
  if (!measured_ || text_ != text || !font_.isCopyOf(label.font())) {
    constexpr int kNoLimit = 2000;
    const QRect bounds =
        label.fontMetrics().boundingRect(0, 0, kNoLimit, kNoLimit, Qt::TextExpandTabs, text);
    text_ = text;
    font_ = label.font();
    measured_ = bounds.size();
  }
  return *measured_;
}

}  // namespace orvanta::qt
