#include <orvanta/qt/UILocalizedTextField.h>
#include <orvanta/qt/WidgetAdapter.h>

namespace orvanta::qt {

class TextFieldAdapter final
    : public StyleAdapter<AccessibleAdapter<AdapterOf<platform::TextField, QLineEdit>>,
                          &QLineEdit::alignment, &QLineEdit::setAlignment> {
 public:
  using StyleAdapter::StyleAdapter;

  String text() const override { return fromQString(widget().text()); }
  void setText(const String& text) override { widget().setText(toQString(text)); }
  String placeholder() const override { return fromQString(widget().placeholderText()); }
  void setPlaceholder(const String& placeholder) override {
    widget().setPlaceholderText(toQString(placeholder));
  }
};

UILocalizedTextField::UILocalizedTextField(QWidget* parent)
    : QLineEdit(parent),
      adapter_(std::make_shared<TextFieldAdapter>(*this)),
      control_(std::make_unique<orvanta::UILocalizedTextField>(adapter_)) {}

UILocalizedTextField::~UILocalizedTextField() = default;

void UILocalizedTextField::awake() {
  control_->awakeFromNib();
}

bool UILocalizedTextField::event(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool handled = adapter_->handleEvent(type, [&] { return QLineEdit::event(event); });
  afterEvent(type);
  return handled;
}

}  // namespace orvanta::qt
