#pragma once

#include <memory>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/controls/LocalizedControl.h>
#include <orvanta/platform/Controls.h>
#include <orvanta/text/LifetimeBound.h>

namespace orvanta {

/// A button that localizes itself: the title typed into it at design time for its normal state is a
/// key, and the title of every state comes from it.
///
/// "Button", the title that a layout editor gives a new button, is a key like any other when it has
/// a translation; as a spoken label it is not remembered. A refresh that is called off the main
/// thread drops its locale: font and alignment are then those of no locale.
class ORVANTA_EXPORT UILocalizedButton : public LocalizedControl {
 public:
  /// The states of a list, in the order in which their titles are set.
  using ControlStates = std::shared_ptr<const std::vector<platform::ControlState>>;

  /// Drives `button`, which must be present. A button made in code localizes itself from
  /// `configure` on.
  explicit UILocalizedButton(const std::shared_ptr<platform::Button>& button);

  /// To be called when the button was loaded from a layout and has its designed state: configures
  /// it.
  void awakeFromNib();

  /// Remembers the designed state, refreshes once, and observes changes of language. A second call
  /// takes the localized state for the designed one, and observes twice.
  void configure();

  /// Normal, disabled, focused, highlighted, selected, unless the application sets another list;
  /// an absent one brings this back.
  [[nodiscard]] const ControlStates& controlStates() ORVANTA_LIFETIME_BOUND;
  /// Used from the next refresh on; see `controlStates`.
  void setControlStates(ControlStates states) noexcept { controlStates_ = std::move(states); }

  /// Sets the text of the key, looked up once, as the title of each of the states.
  void setTitlesFromKey(const String& key);

  /// Applies titles, spoken texts, font and alignment again. The locale steers font and alignment
  /// alone; strings are always in the current language.
  void refreshStringsForLocale(const String& locale) { refreshOnMainThread(locale); }

  /// The button that is driven.
  [[nodiscard]] platform::Button& button() const noexcept { return button_; }

 protected:
  void refresh(const String& locale, const Hold& hold) override;

 private:
  ORVANTA_HIDDEN void refreshStrings(const Hold& hold);

  platform::Button& button_;
  ControlStates controlStates_;
};

}  // namespace orvanta
