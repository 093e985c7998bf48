#include <string_view>

#include <orvanta/controls/UILocalizedTextField.h>
#include <orvanta/locale/SystemInfo.h>
#include <orvanta/platform/Platform.h>

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
    : LocalizedControl(field, LocaleOnTheWay::kept), field_(*field) {}

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
  if (platform::Platform::current().mainQueue->isMainThread()) {
    localizePlaceholder();
  } else {
    onMainThread([this] { localizePlaceholder(); });
  }
}

void UILocalizedTextField::localizePlaceholder() {
  if (!SystemInfo::isTVOS()) {
    return;
  }
  const String placeholder = field_.placeholder();
  for (const PlaceholderMarker& marker : kMarkers) {
    if (placeholder == marker.placeholder) {
      field_.setPlaceholder(localized(String::fromStatic(marker.key)));
      return;
    }
  }
  // By what the field shows now, which at load time is what was remembered.
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
