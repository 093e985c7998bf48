#pragma once

#include <map>
#include <memory>

#include <orvanta/platform/Controls.h>
#include <orvanta/platform/Rect.h>
#include <orvanta/text/LifetimeBound.h>

/// Controls that only remember what they are told: for programs without a screen, for tests, and to
/// start from when a toolkit's own controls are to be adapted.
namespace orvanta::standard {

/// The spoken texts of a control, remembered.
template <typename Interface>
class MemoryAccessible : public Interface {
 public:
  [[nodiscard]] String accessibilityLabel() const override { return label_; }
  void setAccessibilityLabel(const String& label) override { label_ = label; }
  [[nodiscard]] String accessibilityHint() const override { return hint_; }
  void setAccessibilityHint(const String& hint) override { hint_ = hint; }

 private:
  String label_;
  String hint_;
};

/// The font and the alignment of a text, remembered.
template <typename Interface>
class MemoryStyled : public Interface {
 public:
  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override { return font_; }
  void setFont(const std::shared_ptr<const platform::Font>& font) override { font_ = font; }
  [[nodiscard]] platform::TextAlignment textAlignment() const override { return alignment_; }
  void setTextAlignment(platform::TextAlignment alignment) override { alignment_ = alignment; }

 private:
  std::shared_ptr<const platform::Font> font_;
  platform::TextAlignment alignment_ = platform::TextAlignment::natural;
};

/// The text of a label, remembered; an untouched spoken label is the text, as on the device.
template <typename Interface>
class MemoryTexted : public MemoryStyled<MemoryAccessible<Interface>> {
 public:
  explicit MemoryTexted(const platform::Rect& frame = {}) : frame_(frame) {}

  [[nodiscard]] const platform::Rect& frame() const ORVANTA_LIFETIME_BOUND { return frame_; }
  [[nodiscard]] String text() const override { return text_; }
  void setText(const String& text) override { text_ = text; }
  [[nodiscard]] String accessibilityLabel() const override {
    const String label = MemoryAccessible<Interface>::accessibilityLabel();
    return label.isAbsent() ? text_ : label;
  }

 private:
  platform::Rect frame_;
  String text_;
};

using MemoryLabel = MemoryTexted<platform::Label>;

class MemoryTextField : public MemoryTexted<platform::TextField> {
 public:
  using MemoryTexted::MemoryTexted;

  [[nodiscard]] String placeholder() const override { return placeholder_; }
  void setPlaceholder(const String& placeholder) override { placeholder_ = placeholder; }

 private:
  String placeholder_;
};

/// A button whose untouched spoken label is its normal title, as on the device.
class MemoryButton : public MemoryAccessible<platform::Button> {
 public:
  [[nodiscard]] String titleForState(platform::ControlState state) const override {
    auto title = titles_.find(state);
    if (title == titles_.end()) {
      title = titles_.find(platform::kControlStateNormal);
    }
    return title == titles_.end() ? String() : title->second;
  }
  void setTitle(const String& title, platform::ControlState state) override {
    if (title.isAbsent()) {
      titles_.erase(state);
    } else {
      titles_[state] = title;
    }
  }
  [[nodiscard]] platform::TextStyle& titleLabel() override { return titleLabel_; }
  [[nodiscard]] String accessibilityLabel() const override {
    const String label = MemoryAccessible<platform::Button>::accessibilityLabel();
    return label.isAbsent() ? titleForState(platform::kControlStateNormal) : label;
  }

 private:
  std::map<platform::ControlState, String> titles_;
  MemoryStyled<platform::TextStyle> titleLabel_;
};

}  // namespace orvanta::standard
