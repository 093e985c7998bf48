#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <optional>

class QLabel;

namespace orvanta::qt {

/// Memoized size hint of a label. After each change QLabel lays out its text three times, for three
/// widths. A plain text that is not wrapped has the same size for all of them, and is measured
/// once.
class PlainTextSize {
 public:
  /// The size that QLabel would give as size hint and as minimum size hint. Absent when the two may
  /// differ, and when the label has no text.
  [[nodiscard]] std::optional<QSize> hintFor(const QLabel& label);

 private:
  [[nodiscard]] QSize textSize(const QLabel& label);

  QString text_;
  QFont font_;
  std::optional<QSize> measured_;
};

}  // namespace orvanta::qt
