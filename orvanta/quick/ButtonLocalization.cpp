#include <QHash>

#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/quick/ButtonLocalization.h>
#include <orvanta/quick/ItemAdapter.h>

namespace orvanta::quick {

namespace {

// A button's title has a font, and a side that only the button's style decides.
class TitleStyle final : public platform::TextStyle {
 public:
  explicit TitleStyle(QQuickItem& item) : font_(item) {}

  std::shared_ptr<const platform::Font> font() const override { return font_.font(); }
  void setFont(const std::shared_ptr<const platform::Font>& font) override { font_.setFont(font); }
  platform::TextAlignment textAlignment() const override { return alignment_; }
  void setTextAlignment(platform::TextAlignment alignment) override { alignment_ = alignment; }

 private:
  ItemFont font_;
  platform::TextAlignment alignment_ = platform::TextAlignment::center;
};

}  // namespace

class ButtonItem final : public AccessibleItem<platform::Button> {
 public:
  ButtonItem(ItemLocalization& localization, QQuickItem& item, bool mnemonics)
      : AccessibleItem(localization, item),
        style_(item),
        mnemonics_(mnemonics),
        titles_{
            {platform::kControlStateNormal, qt::fromQString(item.property("text").toString())}} {}

  String titleForState(platform::ControlState state) const override {
    return titles_.value(state, titles_.value(platform::kControlStateNormal));
  }
  void setTitle(const String& title, platform::ControlState state) override {
    if (title.isAbsent()) {
      titles_.remove(state);
    } else {
      titles_.insert(state, title);
    }
    show();
  }
  platform::TextStyle& titleLabel() override { return style_; }

  void setMnemonics(bool mnemonics) {
    mnemonics_ = mnemonics;
    show();
  }

 private:
  void show() {
    const QString title = qt::toQString(titleForState(platform::kControlStateNormal));
    item().setProperty("text", mnemonics_ ? title : qt::withoutMnemonics(title));
  }

  TitleStyle style_;
  bool mnemonics_;
  QHash<platform::ControlState, String> titles_;
};

void ButtonLocalization::setMnemonics(bool mnemonics) {
  mnemonics_ = mnemonics;
  if (adapter_ != nullptr) {
    adapter_->setMnemonics(mnemonics);
  }
}

std::unique_ptr<LocalizedControl> ButtonLocalization::awaken(QQuickItem& item) {
  adapter_ = std::make_shared<ButtonItem>(*this, item, mnemonics_);
  auto control = std::make_unique<UILocalizedButton>(adapter_);
  control->awakeFromNib();
  return control;
}

}  // namespace orvanta::quick
