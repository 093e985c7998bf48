#pragma once

#include <memory>

#include <orvanta/Export.h>
#include <orvanta/controls/LocalizedControl.h>
#include <orvanta/platform/Controls.h>
#include <orvanta/text/LifetimeBound.h>

namespace orvanta {

/// A text field that localizes itself: the text typed into it at design time is a key, whatever it
/// is. A field without text, the common case, changes font and alignment alone.
///
/// Only loading from a layout (`awakeFromNib`) configures it; a field made in code never localizes
/// itself.
class ORVANTA_EXPORT UILocalizedTextField : public LocalizedControl {
 public:
  /// Drives `field`, which must be present.
  explicit UILocalizedTextField(const std::shared_ptr<platform::TextField>& field);

  /// To be called when the field was loaded from a layout and has its designed state: remembers it,
  /// localizes the placeholder, refreshes once, and observes changes of language.
  void awakeFromNib();

  /// Localizes the placeholder, once and on television sets alone: elsewhere, and after later
  /// changes of language, it stays as it is.
  void initializePlaceholder();

  /// Applies font, alignment, text and spoken texts again. The locale steers font and alignment
  /// alone; strings are always in the current language.
  void refreshStringsForLocale(const String& locale) { refreshOnMainThread(locale); }

  /// The designed placeholder; remembered with `originalKey`.
  [[nodiscard]] const String& originalPlaceholder() const noexcept ORVANTA_LIFETIME_BOUND {
    return originalPlaceholder_;
  }
  /// Used when the placeholder is localized; see `initializePlaceholder`.
  void setOriginalPlaceholder(String placeholder) noexcept {
    originalPlaceholder_ = std::move(placeholder);
  }

  /// The text field that is driven.
  [[nodiscard]] platform::TextField& field() const noexcept { return field_; }

 protected:
  void refresh(const String& locale, const Hold& hold) override;

 private:
  ORVANTA_HIDDEN void localizePlaceholder();
  ORVANTA_HIDDEN void refreshStrings(const Hold& hold);

  platform::TextField& field_;
  String originalPlaceholder_;
};

}  // namespace orvanta
