#pragma once

#include <Qt>
#include <optional>

#include <orvanta/platform/TextAlignment.h>
#include <orvanta/qt/Export.h>

class QWidget;

namespace orvanta::qt {

/// The side that a designed alignment means. With `Qt::AlignAbsolute` left is left and right is
/// right. Without it left, the same to Qt as leading, and none are natural; right and trailing are
/// right.
[[nodiscard]] ORVANTA_QT_EXPORT platform::TextAlignment textAlignmentOf(Qt::Alignment designed);

/// The horizontal Qt alignment that draws `side` in the widget whatever the text's own direction
/// is. Natural, and what has no name, is the side where texts begin in the widget.
[[nodiscard]] ORVANTA_QT_EXPORT Qt::Alignment alignmentFor(platform::TextAlignment side,
                                                           const QWidget& widget);

/// Remembers which side was meant by the alignment that a widget was given: natural looks like left
/// or right on the widget, and must follow the direction of language and widget.
class SideMemory {
 public:
  /// The side of a widget aligned as `shown`: the one that was set, unless somebody else has
  /// aligned the widget since.
  [[nodiscard]] platform::TextAlignment side(Qt::Alignment shown) const {
    return set_ && shown == shown_ ? *set_ : textAlignmentOf(shown);
  }

  /// The alignment to give to `widget`, which is aligned as `shown`. The vertical part stays.
  [[nodiscard]] Qt::Alignment set(platform::TextAlignment side, Qt::Alignment shown,
                                  const QWidget& widget) {
    set_ = side;
    shown_ = alignmentFor(side, widget) | (shown & Qt::AlignVertical_Mask);
    return shown_;
  }

  /// The same side in the direction of now.
  [[nodiscard]] Qt::Alignment renewed(Qt::Alignment shown, const QWidget& widget) {
    return set_ && shown == shown_ ? set(*set_, shown, widget) : shown;
  }

 private:
  std::optional<platform::TextAlignment> set_;
  Qt::Alignment shown_;
};

}  // namespace orvanta::qt
