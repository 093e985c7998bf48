#pragma once

#include <Qt>
#include <optional>

#include <orvanta/platform/TextAlignment.h>
#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// The side that a designed alignment means. With `Qt::AlignAbsolute` left is left and right is
/// right. Without it left, the same to Qt as leading, and none are natural; right and trailing are
/// right.
[[nodiscard]] ORVANTA_QT_EXPORT platform::TextAlignment textAlignmentOf(Qt::Alignment designed);

/// The Qt alignment that draws `side` whatever the text's own direction is, with the vertical part
/// of `vertical`. Natural, and what has no name, is the side where the application's text begins.
[[nodiscard]] ORVANTA_QT_EXPORT Qt::Alignment alignmentFor(platform::TextAlignment side,
                                                           Qt::Alignment vertical);

/// Remembers which side was meant by the alignment that a widget was given. Natural cannot be told
/// from left or right by looking at the widget, and must follow the application's direction.
class SideMemory {
 public:
  /// The side of a widget aligned as `shown`: the one that was set, unless somebody else has
  /// aligned the widget since.
  [[nodiscard]] platform::TextAlignment side(Qt::Alignment shown) const {
    return set_ && shown == shown_ ? *set_ : textAlignmentOf(shown);
  }

  /// The alignment to give to a widget that was aligned as `shown`.
  [[nodiscard]] Qt::Alignment set(platform::TextAlignment side, Qt::Alignment shown) {
    set_ = side;
    shown_ = alignmentFor(side, shown);
    return shown_;
  }

  /// The same side for the application's direction as it is now.
  [[nodiscard]] Qt::Alignment renewed(Qt::Alignment shown) {
    return set_ && shown == shown_ ? set(*set_, shown) : shown;
  }

 private:
  std::optional<platform::TextAlignment> set_;
  Qt::Alignment shown_;
};

}  // namespace orvanta::qt
