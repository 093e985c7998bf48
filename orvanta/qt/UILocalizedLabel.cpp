#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/WidgetAdapter.h>

namespace orvanta::qt {

class LabelAdapter final
    : public StyleAdapter<AccessibleAdapter<AdapterOf<platform::Label, QLabel>>, &QLabel::alignment,
                          &QLabel::setAlignment> {
 public:
  using StyleAdapter::StyleAdapter;

  String text() const override {
    const QString text = widget().text();
    return fromQString(doublesAmpersands() ? fromMnemonics(text) : text);
  }
  void setText(const String& text) override {
    widget().setText(doublesAmpersands() ? withoutMnemonics(toQString(text)) : toQString(text));
  }

  bool mnemonics() const { return mnemonics_; }
  void setMnemonics(bool mnemonics) { mnemonics_ = mnemonics; }

 private:
  // QLabel reads "&" as the mark of a mnemonic only where it has a buddy.
  bool doublesAmpersands() const { return widget().buddy() != nullptr && !mnemonics_; }

  bool mnemonics_ = false;
};

UILocalizedLabel::UILocalizedLabel(QWidget* parent)
    : QLabel(parent),
      adapter_(std::make_shared<LabelAdapter>(*this)),
      control_(std::make_unique<orvanta::UILocalizedLabel>(adapter_)) {
  setTextFormat(Qt::PlainText);
}

UILocalizedLabel::~UILocalizedLabel() = default;

UILocalizedLabel* UILocalizedLabel::initLocalizedWithFrame(const QRect& frame, QWidget* parent,
                                                           const QString& key) {
  auto* label = new UILocalizedLabel(parent);
  label->setAwake();
  label->control_ = orvanta::UILocalizedLabel::initLocalizedWithFrame(
      {double(frame.x()), double(frame.y()), double(frame.width()), double(frame.height())},
      [&](const platform::Rect&) {
        label->setGeometry(frame);
        label->setText(key);
        return label->adapter_;
      });
  return label;
}

void UILocalizedLabel::awake() {
  control_->awakeFromNib();
}

void UILocalizedLabel::setBuddy(QWidget* buddy) {
  const String text = adapter_->text();
  QLabel::setBuddy(buddy);
  adapter_->setText(text);
}

bool UILocalizedLabel::mnemonics() const {
  return adapter_->mnemonics();
}

void UILocalizedLabel::setMnemonics(bool mnemonics) {
  const String text = adapter_->text();
  adapter_->setMnemonics(mnemonics);
  adapter_->setText(text);
}

QSize UILocalizedLabel::sizeHint() const {
  const std::optional<QSize> hint = plainTextSize_.hintFor(*this);
  return hint ? *hint : QLabel::sizeHint();
}

QSize UILocalizedLabel::minimumSizeHint() const {
  const std::optional<QSize> hint = plainTextSize_.hintFor(*this);
  return hint ? *hint : QLabel::minimumSizeHint();
}

bool UILocalizedLabel::event(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool handled = adapter_->handleEvent(type, [&] { return QLabel::event(event); });
  afterEvent(type);
  return handled;
}

}  // namespace orvanta::qt
