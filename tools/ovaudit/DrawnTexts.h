#pragma once

#include <QFont>
#include <QList>
#include <QRect>
#include <QString>
#include <Qt>

class QWidget;

namespace ovaudit {

/// A text as a widget draws it now.
struct DrawnText {
  QWidget* widget = nullptr;
  QString what;  ///< Which of the widget's texts: "text", "placeholderText" and so on.
  QString text;  ///< As it is read, without the marks of mnemonics.
  QFont font;
  bool isDrawn = true;      ///< False for a text that shows elsewhere, such as a tool tip.
  QRect place = {};         ///< Where the widget draws it, in the coordinates of the window.
  QSize needed = {};        ///< The room that all of it takes.
  Qt::Alignment side = {};  ///< Left, right or centre, whatever direction the widget has.

  /// Where the text stands in its place.
  [[nodiscard]] QRect rect() const;
};

/// The texts of the visible widgets in the window, itself included, and the bound properties of
/// all.
[[nodiscard]] QList<DrawnText> drawnTexts(QWidget& window);

}  // namespace ovaudit
