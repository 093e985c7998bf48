#pragma once

#include <QFont>
#include <QQuickItem>
#include <memory>

#include <orvanta/platform/Font.h>

namespace orvanta::quick {

/// The font of one item as a localized control sees it.
///
///     base      the item's property "font", as the application sets it
///     override  what the library shows in its place, in a language with a font of its own
///
/// Without an override the item is left alone. Under one, what the application changes in the
/// property "font", such as the size, shows at once and belongs to the base from then on.
class ItemFont {
 public:
  using FontPointer = std::shared_ptr<const platform::Font>;

  /// `item` must outlive this.
  explicit ItemFont(QQuickItem& item);
  ItemFont(const ItemFont&) = delete;
  ItemFont& operator=(const ItemFont&) = delete;
  ~ItemFont();

  /// The override, else the base: a handle that answers with what the base is at the time.
  [[nodiscard]] FontPointer font() const;
  /// The handle of the base takes the override away; any other font is an override.
  void setFont(const FontPointer& font);

 private:
  class Base;

  [[nodiscard]] QFont itemFont() const;
  [[nodiscard]] QFont baseFont() const;

  QQuickItem& item_;
  const std::shared_ptr<Base> base_;
  FontPointer override_;
  // While there is an override: the base, and what the item has made of the override.
  QFont design_;
  QFont shown_;
};

}  // namespace orvanta::quick
