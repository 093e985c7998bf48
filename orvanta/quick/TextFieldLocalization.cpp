#include <orvanta/controls/UILocalizedTextField.h>
#include <orvanta/quick/ItemAdapter.h>
#include <orvanta/quick/TextFieldLocalization.h>

namespace orvanta::quick {

class TextFieldItem final : public TextItem<platform::TextField> {
 public:
  using TextItem::TextItem;

  String placeholder() const override {
    return qt::fromQString(item().property("placeholderText").toString());
  }
  void setPlaceholder(const String& placeholder) override {
    item().setProperty("placeholderText", qt::toQString(placeholder));
  }
};

std::unique_ptr<LocalizedControl> TextFieldLocalization::awaken(QQuickItem& item) {
  adapter_ = std::make_shared<TextFieldItem>(*this, item);
  auto control = std::make_unique<UILocalizedTextField>(adapter_);
  control->awakeFromNib();
  return control;
}

void TextFieldLocalization::mirrored() {
  adapter_->renewSide();
}

}  // namespace orvanta::quick
