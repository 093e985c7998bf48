#include <utility>

#include <orvanta/controls/DeferredConfiguration.h>
#include <orvanta/controls/UILocalizedLabel.h>

namespace orvanta {

namespace {

constexpr std::string_view kDefaultText = "Label";

}  // namespace

UILocalizedLabel::UILocalizedLabel(std::shared_ptr<platform::Label> label)
    : LocalizedControl(LocaleOnTheWay::kept), label_(std::move(label)) {}

std::unique_ptr<UILocalizedLabel> UILocalizedLabel::initLocalizedWithFrame(
    const platform::Rect& frame, const LabelMaker& initWithFrame) {
  std::shared_ptr<platform::Label> label = initWithFrame(frame);
  if (label == nullptr) {
    return nullptr;
  }
  auto localized = std::make_unique<UILocalizedLabel>(std::move(label));
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
  rememberStyle(*label_);
  const String text = label_->text();
  if (text != kDefaultText && isKey(text)) {
    setOriginalKey(text);
    const String spoken = label_->accessibilityLabel();
    if (spoken != kDefaultText) {
      setOriginalAccessibilityLabel(spoken);
    }
    setOriginalAccessibilityHint(label_->accessibilityHint());
  }
  handleOVPreferredLocaleDidChangeNotification(nullptr);
  observeLanguageChanges();
}

void UILocalizedLabel::refresh(const String& locale) {
  if (!originalKey().empty()) {
    label_->setText(localized(originalKey()));
    refreshAccessibility(*label_);
  }
  refreshStyle(*label_, locale);
}

}  // namespace orvanta
