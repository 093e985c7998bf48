#include <QStyleOptionButton>
#include <QStylePainter>

#include <orvanta/qt/ButtonTitleLayout.h>
#include <orvanta/qt/ButtonTitles.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/WidgetAdapter.h>

namespace orvanta::qt {

namespace {

using platform::ControlState;

using TitleStyle =
    StyleAdapter<AdapterOf<platform::TextStyle, UILocalizedButton>,
                 &UILocalizedButton::titleAlignment, &UILocalizedButton::setTitleAlignment>;

}  // namespace

class ButtonAdapter final
    : public AccessibleAdapter<AdapterOf<platform::Button, UILocalizedButton>> {
 public:
  explicit ButtonAdapter(UILocalizedButton& button)
      : AccessibleAdapter(button), titles_(button), titleStyle_(button) {}

  ButtonTitles& titles() { return titles_; }

  String titleForState(ControlState state) const override {
    return fromQString(widget().titleForState(state));
  }
  void setTitle(const String& title, ControlState state) override {
    widget().setTitle(toQString(title), state);
  }
  TitleStyle& titleLabel() override { return titleStyle_; }

 private:
  ButtonTitles titles_;
  TitleStyle titleStyle_;
};

UILocalizedButton::UILocalizedButton(QWidget* parent)
    : QPushButton(parent),
      adapter_(std::make_shared<ButtonAdapter>(*this)),
      control_(std::make_unique<orvanta::UILocalizedButton>(adapter_)) {}

UILocalizedButton::~UILocalizedButton() = default;

void UILocalizedButton::awake() {
  control_->awakeFromNib();
}

void UILocalizedButton::configure() {
  setAwake();
  control_->configure();
}

QString UILocalizedButton::titleForState(ControlState state) const {
  const QString title = adapter_->titles().title(state);
  return mnemonics_ ? title : fromMnemonics(title);
}

void UILocalizedButton::setTitle(const QString& title, ControlState state) {
  if (adapter_->titles().setTitle(state, mnemonics_ ? title : withoutMnemonics(title))) {
    updateGeometry();
    update();
  }
}

void UILocalizedButton::setTitleAlignment(Qt::Alignment alignment) {
  if (alignment != titleAlignment_) {
    titleAlignment_ = alignment;
    update();
  }
}

ControlState UILocalizedButton::shownState() const {
  if (!isEnabled()) {
    return platform::kControlStateDisabled;
  }
  if (isDown()) {
    return platform::kControlStateHighlighted;
  }
  if (isChecked()) {
    return platform::kControlStateSelected;
  }
  return hasFocus() ? platform::kControlStateFocused : platform::kControlStateNormal;
}

void UILocalizedButton::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  option->text = adapter_->titles().title(shownState());
}

QSize UILocalizedButton::sizeHint() const {
  QSize hint = QPushButton::sizeHint();
  for (const auto& [state, title] : adapter_->titles().ownTitles()) {
    if (title != text()) {
      QStyleOptionButton option;
      QPushButton::initStyleOption(&option);
      option.text = title;
      hint = hint.expandedTo(sizeHintWithTitle(*this, option));
    }
  }
  return hint;
}

void UILocalizedButton::paintEvent(QPaintEvent* event) {
  const Qt::Alignment side = alignmentFor(textAlignmentOf(titleAlignment_), *this);
  if (side.testFlag(Qt::AlignHCenter)) {
    QPushButton::paintEvent(event);
    return;
  }
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  paintWithTitleAtSide(*this, option, side, painter);
}

bool UILocalizedButton::event(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool handled =
      adapter_->titleLabel().handleEvent(type, [&] { return QPushButton::event(event); });
  afterEvent(type);
  return handled;
}

}  // namespace orvanta::qt
