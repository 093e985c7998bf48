#pragma once

#include <cstdint>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>
#include <orvanta/platform/TextAlignment.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

/// What the library asks of a toolkit's controls. A port writes one adapter a control; the
/// localized controls drive it, on the main thread alone.
namespace orvanta::platform {

/// What any control tells those who cannot see it. Absent where nothing was set.
class ORVANTA_EXPORT Accessible {
 public:
  virtual ~Accessible();
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  [[nodiscard]] virtual String accessibilityLabel() const = 0;
  virtual void setAccessibilityLabel(const String& label) = 0;
  [[nodiscard]] virtual String accessibilityHint() const = 0;
  virtual void setAccessibilityHint(const String& hint) = 0;

 protected:
  Accessible() = default;
};

/// How something draws its text.
class ORVANTA_EXPORT TextStyle {
 public:
  virtual ~TextStyle();
  TextStyle(const TextStyle&) = delete;
  TextStyle& operator=(const TextStyle&) = delete;

  [[nodiscard]] virtual std::shared_ptr<const Font> font() const = 0;
  /// With an absent font the toolkit does what it does without one.
  virtual void setFont(const std::shared_ptr<const Font>& font) = 0;
  [[nodiscard]] virtual TextAlignment textAlignment() const = 0;
  virtual void setTextAlignment(TextAlignment alignment) = 0;

 protected:
  TextStyle() = default;
};

/// A control that shows one text.
class ORVANTA_EXPORT Label : public Accessible, public TextStyle {
 public:
  [[nodiscard]] virtual String text() const = 0;
  virtual void setText(const String& text) = 0;
};

/// A control in which one text can be typed.
class ORVANTA_EXPORT TextField : public Label {
 public:
  /// What is shown while the text is empty.
  [[nodiscard]] virtual String placeholder() const = 0;
  virtual void setPlaceholder(const String& placeholder) = 0;
};

/// A state that a control can be in, numbered as the device numbers it.
using ControlState = std::uint64_t;
inline constexpr ControlState kControlStateNormal = 0;
inline constexpr ControlState kControlStateHighlighted = 1;
inline constexpr ControlState kControlStateDisabled = 2;
inline constexpr ControlState kControlStateSelected = 4;
inline constexpr ControlState kControlStateFocused = 8;

/// A control that is pressed. It has a title for each state.
class ORVANTA_EXPORT Button : public Accessible {
 public:
  /// The title of a state; a state without one of its own has the normal state's.
  [[nodiscard]] virtual String titleForState(ControlState state) const = 0;
  virtual void setTitle(const String& title, ControlState state) = 0;
  /// What draws the title; lives as long as the button.
  [[nodiscard]] virtual TextStyle& titleLabel() ORVANTA_LIFETIME_BOUND = 0;
};

}  // namespace orvanta::platform
