#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QList>
#include <QRect>
#include <QString>
#include <Qt>

class QObject;

namespace ovaudit {

/// A text as a widget or a Qt Quick item draws it now.
struct DrawnText {
  const QObject* owner = nullptr;
  QString name;  ///< The owner's name, or its class where it has none.
  QString what;  ///< Which of its texts: "text", "placeholderText" and so on.
  QString text;  ///< As it is read, without the marks of mnemonics.
  QFont font;
  bool isDrawn = true;      ///< False for a text that shows elsewhere, such as a tool tip.
  QRect place = {};         ///< Where it is drawn, in the coordinates of the window.
  QRect visible = {};       ///< The part of that which is not clipped.
  QSize needed = {};        ///< The room that all of it takes.
  Qt::Alignment side = {};  ///< Left, right or centre, whatever direction the owner has.

  /// Where the text stands in its place.
  [[nodiscard]] QRect rect() const;
};

/// The size of a text without the blank that the font's line has above and below its letters, in
/// some fonts far more than in others. What is drawn stands in the middle of its place.
[[nodiscard]] QSize withoutLeading(QSize size, const QString& text, const QFontMetrics& metrics);

}  // namespace ovaudit
