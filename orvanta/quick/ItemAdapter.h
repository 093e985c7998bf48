#pragma once

#include <QVariant>
#include <memory>

#include <orvanta/platform/Controls.h>
#include <orvanta/qt/Text.h>

#include "ItemFont.h"
#include "ItemLocalization.h"
#include "ItemSide.h"

/// What the adapters of the three elements are put together from. Each layer adds what one of the
/// library's interfaces asks for. The localization and its item must outlive them.
namespace orvanta::quick {

/// The spoken texts. An empty one was never set.
template <typename Interface>
class AccessibleItem : public Interface {
 public:
  AccessibleItem(ItemLocalization& localization, QQuickItem& item)
      : localization_(localization), item_(item) {}

  [[nodiscard]] String accessibilityLabel() const override {
    return spoken(localization_.accessibleName());
  }
  void setAccessibilityLabel(const String& label) override {
    localization_.setAccessibleName(qt::toQString(label));
  }
  [[nodiscard]] String accessibilityHint() const override {
    return spoken(localization_.accessibleDescription());
  }
  void setAccessibilityHint(const String& hint) override {
    localization_.setAccessibleDescription(qt::toQString(hint));
  }

 protected:
  [[nodiscard]] QQuickItem& item() const { return item_; }

 private:
  static String spoken(const QString& text) {
    return text.isEmpty() ? String() : qt::fromQString(text);
  }

  ItemLocalization& localization_;
  QQuickItem& item_;
};

/// Text, font and side.
template <typename Interface>
class TextItem : public AccessibleItem<Interface> {
 public:
  TextItem(ItemLocalization& localization, QQuickItem& item)
      : AccessibleItem<Interface>(localization, item), font_(item), side_(item) {}

  [[nodiscard]] String text() const override {
    return qt::fromQString(this->item().property("text").toString());
  }
  void setText(const String& text) override {
    this->item().setProperty("text", qt::toQString(text));
  }
  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override { return font_.font(); }
  void setFont(const std::shared_ptr<const platform::Font>& font) override { font_.setFont(font); }
  [[nodiscard]] platform::TextAlignment textAlignment() const override { return side_.side(); }
  void setTextAlignment(platform::TextAlignment alignment) override { side_.set(alignment); }

  void renewSide() { side_.renew(); }

 private:
  ItemFont font_;
  ItemSide side_;
};

}  // namespace orvanta::quick
