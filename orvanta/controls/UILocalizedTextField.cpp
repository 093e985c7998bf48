#include <string_view>

#include <orvanta/controls/UILocalizedTextField.h>
#include <orvanta/locale/SystemInfo.h>

namespace orvanta {

namespace {

// Designed placeholders that stand for a key of the sign-in screen.
struct PlaceholderMarker {
  std::string_view placeholder;
  std::string_view key;
};

constexpr PlaceholderMarker kMarkers[] = {
    {"email.p", "STRING.TUNDEL.NONMEMBER.email.emailTextField.placeholder"},
    {"password.p", "STRING.TUNDEL.NONMEMBER.email.passwordTextField.placeholder"},
};

}  // namespace

UILocalizedTextField::UILocalizedTextField(const std::shared_ptr<platform::TextField>& field)
    : LocalizedControl(field, CarriedLocale::kept), field_(*field) {}

void UILocalizedTextField::awakeFromNib() {
  const String text = field_.text();
  if (isKey(text)) {
    setOriginalKey(text);
    setOriginalAccessibilityLabel(field_.accessibilityLabel());
    setOriginalAccessibilityHint(field_.accessibilityHint());
    setOriginalPlaceholder(field_.placeholder());
  }
  rememberStyle(field_);
  Hold(*this).takeSteps([&] { initializePlaceholder(); }, [&] { followLanguage(); });
}

void UILocalizedTextField::initializePlaceholder() {
  onMainThread([this] { localizePlaceholder(); });
}

void UILocalizedTextField::localizePlaceholder() {
  if (!SystemInfo::isTVOS()) {
    return;
  }
  const Hold hold(*this);
  const String placeholder = field_.placeholder();
  for (const PlaceholderMarker& marker : kMarkers) {
    if (placeholder == marker.placeholder) {
      field_.setPlaceholder(localized(String::fromStatic(marker.key)));
      return;
    }
  }
  // The key is what the field shows now; when it was just loaded, that is the remembered one.
  if (!originalPlaceholder_.empty()) {
    field_.setPlaceholder(localized(placeholder));
  }
}

void UILocalizedTextField::refresh(const String& locale, const Hold& hold) {
  hold.takeSteps([&] { refreshStyle(field_, locale, hold); },
                 [&] {
                   if (!originalKey().empty()) {
                     refreshStrings(hold);
                   }
                 });
}

void UILocalizedTextField::refreshStrings(const Hold& hold) {
  hold.takeSteps([&] { field_.setText(localized(originalKey())); },
                 [&] { refreshAccessibility(field_, hold); });
}

}  // namespace orvanta
