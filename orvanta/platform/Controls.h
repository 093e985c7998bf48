#pragma once

#include <cstdint>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>
#include <orvanta/platform/TextAlignment.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

/// What the library needs of a toolkit's controls. A port writes an adapter for each kind of
/// control; the localized controls call it on the main thread only.
namespace orvanta::platform {

/// The texts of a control for assistive technology. Absent while nothing is set; setting an absent
/// text removes it.
class ORVANTA_EXPORT Accessible {
 public:
  virtual ~Accessible();
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  /// What the control is.
  [[nodiscard]] virtual String accessibilityLabel() const = 0;
  /// Absent removes it.
  virtual void setAccessibilityLabel(const String& label) = 0;
  /// What using the control does.
  [[nodiscard]] virtual String accessibilityHint() const = 0;
  /// Absent removes it.
  virtual void setAccessibilityHint(const String& hint) = 0;

 protected:
  Accessible() = default;
};

/// The font and the alignment of a drawn text.
class ORVANTA_EXPORT TextStyle {
 public:
  virtual ~TextStyle();
  TextStyle(const TextStyle&) = delete;
  TextStyle& operator=(const TextStyle&) = delete;

  /// Null when the toolkit's default applies.
  [[nodiscard]] virtual std::shared_ptr<const Font> font() const = 0;
  /// Null for the toolkit's default.
  virtual void setFont(const std::shared_ptr<const Font>& font) = 0;
  /// The value last set, unchanged, even one without a name.
  [[nodiscard]] virtual TextAlignment textAlignment() const = 0;
  /// Any value is kept.
  virtual void setTextAlignment(TextAlignment alignment) = 0;

 protected:
  TextStyle() = default;
};

/// A control that shows one text.
class ORVANTA_EXPORT Label : public Accessible, public TextStyle {
 public:
  /// What is shown; absent or empty when nothing is.
  [[nodiscard]] virtual String text() const = 0;
  /// Absent shows nothing.
  virtual void setText(const String& text) = 0;
};

/// A control in which the user types one text.
class ORVANTA_EXPORT TextField : public Label {
 public:
  /// What is shown while the text is empty; absent when nothing is.
  [[nodiscard]] virtual String placeholder() const = 0;
  /// Absent shows nothing.
  virtual void setPlaceholder(const String& placeholder) = 0;
};

/// A state of a control: a sum of the values below, and others that pass through unchanged.
using ControlState = std::uint64_t;
/// No other state.
inline constexpr ControlState kControlStateNormal = 0;
/// While it is pressed.
inline constexpr ControlState kControlStateHighlighted = 1;
/// While it cannot be used.
inline constexpr ControlState kControlStateDisabled = 2;
/// While it is chosen.
inline constexpr ControlState kControlStateSelected = 4;
/// While it has the input focus.
inline constexpr ControlState kControlStateFocused = 8;

/// A control that the user presses. It has a title for each state.
class ORVANTA_EXPORT Button : public Accessible {
 public:
  /// The title of a state: its own, else that of the normal state, else absent.
  [[nodiscard]] virtual String titleForState(ControlState state) const = 0;
  /// Sets the title of one state; absent removes it.
  virtual void setTitle(const String& title, ControlState state) = 0;
  /// What draws the title; lives as long as the button.
  [[nodiscard]] virtual TextStyle& titleLabel() ORVANTA_LIFETIME_BOUND = 0;
};

}  // namespace orvanta::platform
