#pragma once

#include <QEvent>
#include <QWidget>
#include <memory>

#include <orvanta/platform/Controls.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/TextSides.h>
#include <orvanta/qt/WidgetFont.h>

/// What the adapters of the three widgets are put together from. Each layer adds what one of the
/// library's interfaces asks for.
namespace orvanta::qt {

/// The widget behind an adapter, which it must outlive.
template <typename Interface, typename Widget>
class AdapterOf : public Interface {
 public:
  explicit AdapterOf(Widget& widget) : widget_(widget) {}

 protected:
  [[nodiscard]] Widget& widget() const { return widget_; }

 private:
  Widget& widget_;
};

/// The spoken texts. An empty one was never set.
template <typename Base>
class AccessibleAdapter : public Base {
 public:
  using Base::Base;

  [[nodiscard]] String accessibilityLabel() const override {
    return spoken(this->widget().accessibleName());
  }
  void setAccessibilityLabel(const String& label) override {
    this->widget().setAccessibleName(toQString(label));
  }
  [[nodiscard]] String accessibilityHint() const override {
    return spoken(this->widget().accessibleDescription());
  }
  void setAccessibilityHint(const String& hint) override {
    this->widget().setAccessibleDescription(toQString(hint));
  }

 private:
  static String spoken(const QString& text) {
    return text.isEmpty() ? String() : fromQString(text);
  }
};

/// Font and sides of the text. The two members are the widget's own alignment property.
template <typename Base, auto kAlignment, auto kSetAlignment>
class StyleAdapter : public Base {
 public:
  template <typename Widget>
  explicit StyleAdapter(Widget& widget) : Base(widget), font_(widget) {}

  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override { return font_.font(); }
  void setFont(const std::shared_ptr<const platform::Font>& font) override { font_.setFont(font); }
  [[nodiscard]] platform::TextAlignment textAlignment() const override {
    return sides_.side((this->widget().*kAlignment)());
  }
  void setTextAlignment(platform::TextAlignment alignment) override {
    const Qt::Alignment shown = (this->widget().*kAlignment)();
    align(shown, sides_.set(alignment, shown, this->widget()));
  }

  /// Has the widget handle an event by `handle`, and does what the change that it tells of asks
  /// for.
  template <typename Handle>
  bool handleEvent(QEvent::Type type, const Handle& handle) {
    switch (type) {
      case QEvent::Polish:
      case QEvent::StyleChange:
      case QEvent::FontChange: {
        font_.beforeEvent(type);
        const bool handled = handle();
        font_.afterEvent(type);
        return handled;
      }
      case QEvent::LayoutDirectionChange:
      case QEvent::ParentChange: {
        const bool handled = handle();
        const Qt::Alignment shown = (this->widget().*kAlignment)();
        align(shown, sides_.renewed(shown, this->widget()));
        return handled;
      }
      default:
        return handle();
    }
  }

 private:
  // A line edit would repaint itself for the alignment that it has.
  void align(Qt::Alignment shown, Qt::Alignment wanted) {
    if (wanted != shown) {
      (this->widget().*kSetAlignment)(wanted);
    }
  }

  SideMemory sides_;
  WidgetFont font_;
};

}  // namespace orvanta::qt
