#include <string_view>

#include <orvanta/controls/DeferredConfiguration.h>
#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta {

namespace {

constexpr std::string_view kDefaultTitle = "Button";

// One list for all buttons; its order is the order in which titles are set.
const UILocalizedButton::ControlStates& defaultStates() {
  static NoDestructor<const UILocalizedButton::ControlStates> states(
      std::make_shared<const std::vector<platform::ControlState>>(
          std::vector{platform::kControlStateNormal, platform::kControlStateDisabled,
                      platform::kControlStateFocused, platform::kControlStateHighlighted,
                      platform::kControlStateSelected}));
  return *states;
}

}  // namespace

UILocalizedButton::UILocalizedButton(const std::shared_ptr<platform::Button>& button)
    : LocalizedControl(button, CarriedLocale::dropped), button_(*button) {}

void UILocalizedButton::awakeFromNib() {
  if (configurationIsDeferred()) {
    later([this] { configure(); });
  } else {
    configure();
  }
}

void UILocalizedButton::configure() {
  const String title = button_.titleForState(platform::kControlStateNormal);
  if (isKey(title)) {
    setOriginalKey(title);
    const String spoken = button_.accessibilityLabel();
    if (spoken != kDefaultTitle) {
      setOriginalAccessibilityLabel(spoken);
    }
    setOriginalAccessibilityHint(button_.accessibilityHint());
  }
  rememberStyle(button_.titleLabel());
  followLanguage();
}

const UILocalizedButton::ControlStates& UILocalizedButton::controlStates() {
  if (controlStates_ == nullptr) {
    controlStates_ = defaultStates();
  }
  return controlStates_;
}

void UILocalizedButton::setTitlesFromKey(const String& key) {
  const String title = localized(key);
  // A handle of its own: the application may set another list inside `setTitle`.
  const ControlStates states = controlStates();
  const Hold hold(*this);
  for (const platform::ControlState state : *states) {
    if (!hold.controlLives()) {
      return;
    }
    button_.setTitle(title, state);
  }
}

void UILocalizedButton::refresh(const String& locale, const Hold& hold) {
  hold.takeSteps(
      [&] {
        if (!originalKey().empty()) {
          refreshStrings(hold);
        }
      },
      [&] { refreshStyle(button_.titleLabel(), locale, hold); });
}

void UILocalizedButton::refreshStrings(const Hold& hold) {
  // Each title is set twice on purpose; observers of the toolkit's button see both.
  hold.takeSteps([&] { setTitlesFromKey(originalKey()); }, [&] { setTitlesFromKey(originalKey()); },
                 [&] { refreshAccessibility(button_, hold); });
}

}  // namespace orvanta
