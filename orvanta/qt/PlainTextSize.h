#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <optional>

class QLabel;

namespace orvanta::qt {

/// The size hint of a label whose text is plain and not wrapped. QLabel measures a text three
/// times, for as many widths, after every change; this one measures once what has the same size in
/// all.
class PlainTextSize {
 public:
  /// What QLabel itself would give as both of its hints; none where the two may differ, and where
  /// the label shows no text.
  [[nodiscard]] std::optional<QSize> hintFor(const QLabel& label);

 private:
  [[nodiscard]] QSize textSize(const QLabel& label);

  QString text_;
  QFont font_;
  std::optional<QSize> measured_;
};

}  // namespace orvanta::qt
