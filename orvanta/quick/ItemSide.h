#pragma once

#include <QQuickItem>
#include <optional>

#include <orvanta/platform/TextAlignment.h>

namespace orvanta::quick {

/// The side of one item's text, by its property "horizontalAlignment". A side that is designed as
/// left, or not at all, is natural: the side where texts begin in the current language.
class ItemSide {
 public:
  /// `item` must outlive this.
  explicit ItemSide(QQuickItem& item) : item_(item) {}

  [[nodiscard]] platform::TextAlignment side() const;
  /// Draws the text at this side, whether the item is mirrored or not.
  void set(platform::TextAlignment side);
  /// To be called when the item is mirrored and when it is not any more.
  void renew();

 private:
  [[nodiscard]] int shownNow() const;

  QQuickItem& item_;
  // What was set, and the value of the property that it came to.
  std::optional<platform::TextAlignment> set_;
  int shown_ = 0;
  // Whether this is changing the property, which emits signals.
  bool isSetting_ = false;
};

}  // namespace orvanta::quick
