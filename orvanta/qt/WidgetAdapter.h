#pragma once

#include <QFont>
#include <QWidget>
#include <memory>

#include <orvanta/platform/Controls.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/TextSides.h>
#include <orvanta/qt/platform/QtFonts.h>

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
  using Base::Base;

  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override {
    QFont font = this->widget().font();
    // What is inherited from a parent must not come back as the widget's own.
    if (!this->widget().testAttribute(Qt::WA_SetFont)) {
      font.setResolveMask(0);
    }
    return fontHandle(font);
  }
  // Nothing to do when the widget still has the font that was set last: Qt would look up all that
  // the widget inherits before it found that out.
  void setFont(const std::shared_ptr<const platform::Font>& font) override {
    if (font == font_ && this->widget().font().isCopyOf(shown_)) {
      return;
    }
    this->widget().setFont(toQFont(font));
    font_ = font;
    shown_ = this->widget().font();
  }
  [[nodiscard]] platform::TextAlignment textAlignment() const override {
    return sides_.side((this->widget().*kAlignment)());
  }
  void setTextAlignment(platform::TextAlignment alignment) override {
    const Qt::Alignment shown = (this->widget().*kAlignment)();
    align(shown, sides_.set(alignment, shown));
  }

  /// To be called when the application's direction has changed.
  void renewSides() {
    const Qt::Alignment shown = (this->widget().*kAlignment)();
    align(shown, sides_.renewed(shown));
  }

 private:
  // A line edit would repaint itself for the alignment that it has.
  void align(Qt::Alignment shown, Qt::Alignment wanted) {
    if (wanted != shown) {
      (this->widget().*kSetAlignment)(wanted);
    }
  }

  SideMemory sides_;
  std::shared_ptr<const platform::Font> font_;
  QFont shown_;
};

}  // namespace orvanta::qt
