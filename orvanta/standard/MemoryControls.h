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
  /// Absent until one is set.
  [[nodiscard]] String accessibilityLabel() const override { return label_; }
  /// Remembers it.
  void setAccessibilityLabel(const String& label) override { label_ = label; }
  /// Absent until one is set.
  [[nodiscard]] String accessibilityHint() const override { return hint_; }
  /// Remembers it.
  void setAccessibilityHint(const String& hint) override { hint_ = hint; }

 private:
  String label_;
  String hint_;
};

/// The font and the alignment of a text, remembered.
template <typename Interface>
class MemoryStyled : public Interface {
 public:
  /// Null until one is set.
  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override { return font_; }
  /// Remembers it.
  void setFont(const std::shared_ptr<const platform::Font>& font) override { font_ = font; }
  /// Natural until one is set.
  [[nodiscard]] platform::TextAlignment textAlignment() const override { return alignment_; }
  /// Remembers it.
  void setTextAlignment(platform::TextAlignment alignment) override { alignment_ = alignment; }

 private:
  std::shared_ptr<const platform::Font> font_;
  platform::TextAlignment alignment_ = platform::TextAlignment::natural;
};

/// The text of a label, remembered; an untouched spoken label is the text, as on the device.
template <typename Interface>
class MemoryTexted : public MemoryStyled<MemoryAccessible<Interface>> {
 public:
  /// With a frame, which is only remembered.
  explicit MemoryTexted(const platform::Rect& frame = {}) : frame_(frame) {}

  /// As it was given.
  [[nodiscard]] const platform::Rect& frame() const ORVANTA_LIFETIME_BOUND { return frame_; }
  /// Absent until one is set.
  [[nodiscard]] String text() const override { return text_; }
  /// Remembers it.
  void setText(const String& text) override { text_ = text; }
  /// The text where none is set.
  [[nodiscard]] String accessibilityLabel() const override {
    const String label = MemoryAccessible<Interface>::accessibilityLabel();
    return label.isAbsent() ? text_ : label;
  }

 private:
  platform::Rect frame_;
  String text_;
};

/// A label that only remembers.
using MemoryLabel = MemoryTexted<platform::Label>;

/// A text field that only remembers.
class MemoryTextField : public MemoryTexted<platform::TextField> {
 public:
  /// See `MemoryTexted`.
  using MemoryTexted::MemoryTexted;

  /// Absent until one is set.
  [[nodiscard]] String placeholder() const override { return placeholder_; }
  /// Remembers it.
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
