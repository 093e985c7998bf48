#pragma once

#include <functional>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/controls/LocalizedControl.h>
#include <orvanta/platform/Controls.h>
#include <orvanta/platform/Rect.h>

namespace orvanta {

/// A label that localizes itself: the text typed into it at design time is a key.
///
/// "Label", the text that a layout editor gives a new label, is never a key.
class ORVANTA_EXPORT UILocalizedLabel : public LocalizedControl {
 public:
  /// Drives `label`, which must be present. Does nothing yet: a label that is neither loaded from a
  /// layout (`awakeFromNib`) nor made by `initLocalizedWithFrame` never localizes itself.
  explicit UILocalizedLabel(const std::shared_ptr<platform::Label>& label);

  /// Makes the toolkit's label with exactly this frame; absent when it has none to give.
  using LabelMaker = std::function<std::shared_ptr<platform::Label>(const platform::Rect& frame)>;

  /// A configured label made in code; absent when `initWithFrame` gives none.
  [[nodiscard]] static std::unique_ptr<UILocalizedLabel> initLocalizedWithFrame(
      const platform::Rect& frame, const LabelMaker& initWithFrame);

  /// To be called when the label was loaded from a layout and has its designed state: configures
  /// it.
  void awakeFromNib();

  /// Remembers the designed state, refreshes once, and observes changes of language. A second call
  /// takes the localized state for the designed one, and observes twice.
  void configure();

  /// Applies text, spoken texts, font and alignment again. The locale steers font and alignment
  /// alone; strings are always in the current language.
  void refreshStringsFromLocale(const String& locale) { refreshOnMainThread(locale); }

  /// The label that is driven.
  [[nodiscard]] platform::Label& label() const noexcept { return label_; }

 protected:
  void refresh(const String& locale, const Hold& hold) override;

 private:
  ORVANTA_HIDDEN void refreshStrings(const Hold& hold);

  platform::Label& label_;
};

}  // namespace orvanta
