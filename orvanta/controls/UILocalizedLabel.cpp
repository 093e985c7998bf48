#include <string_view>

#include <orvanta/controls/DeferredConfiguration.h>
#include <orvanta/controls/UILocalizedLabel.h>

namespace orvanta {

namespace {

constexpr std::string_view kDefaultText = "Label";

}  // namespace

UILocalizedLabel::UILocalizedLabel(const std::shared_ptr<platform::Label>& label)
    : LocalizedControl(label, CarriedLocale::kept), label_(*label) {}

std::unique_ptr<UILocalizedLabel> UILocalizedLabel::initLocalizedWithFrame(
    const platform::Rect& frame, const LabelMaker& initWithFrame) {
  const std::shared_ptr<platform::Label> label = initWithFrame ? initWithFrame(frame) : nullptr;
  if (label == nullptr) {
    return nullptr;
  }
  auto localized = std::make_unique<UILocalizedLabel>(label);
  localized->configure();
  return localized;
}

void UILocalizedLabel::awakeFromNib() {
  if (configurationIsDeferred()) {
    later([this] { configure(); });
  } else {
    configure();
  }
}

void UILocalizedLabel::configure() {
  rememberStyle(label_);
  const String text = label_.text();
  if (text != kDefaultText && isKey(text)) {
    setOriginalKey(text);
    const String spoken = label_.accessibilityLabel();
    if (spoken != kDefaultText) {
      setOriginalAccessibilityLabel(spoken);
    }
    setOriginalAccessibilityHint(label_.accessibilityHint());
  }
  followLanguage();
}

void UILocalizedLabel::refresh(const String& locale, const Hold& hold) {
  hold.takeSteps(
      [&] {
        if (!originalKey().empty()) {
          refreshStrings(hold);
        }
      },
      [&] { refreshStyle(label_, locale, hold); });
}

void UILocalizedLabel::refreshStrings(const Hold& hold) {
  hold.takeSteps([&] { label_.setText(localized(originalKey())); },
                 [&] { refreshAccessibility(label_, hold); });
}

}  // namespace orvanta
