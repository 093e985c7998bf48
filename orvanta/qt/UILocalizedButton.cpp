#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

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
      : AccessibleAdapter(button), titleStyle_(button) {}

  String titleForState(ControlState state) const override {
    return fromQString(widget().titleForState(state));
  }
  void setTitle(const String& title, ControlState state) override {
    widget().setTitle(toQString(title), state);
  }
  TitleStyle& titleLabel() override { return titleStyle_; }

 private:
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
  const auto title = titles_.find(state);
  return fromMnemonics(title == titles_.end() ? text() : title->second);
}

void UILocalizedButton::setTitle(const QString& title, ControlState state) {
  const QString written = withoutMnemonics(title);
  if (state == platform::kControlStateNormal) {
    if (written != text()) {
      setText(written);
    }
    return;
  }
  QString& own = titles_[state];
  if (own != written) {
    own = written;
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
  const auto title = titles_.find(shownState());
  if (title != titles_.end()) {
    option->text = title->second;
  }
}

QSize UILocalizedButton::sizeHint() const {
  const auto widthOf = [this](const QString& title) {
    return fontMetrics().size(Qt::TextShowMnemonic, title).width();
  };
  const int normal = widthOf(text());
  int widest = normal;
  for (const auto& [state, title] : titles_) {
    widest = title == text() ? widest : std::max(widest, widthOf(title));
  }
  return QPushButton::sizeHint() + QSize(widest - normal, 0);
}

// Styles draw icon and title in the middle of the place that they are given. At a side they are
// given just the place that the two need.
void UILocalizedButton::paintEvent(QPaintEvent* event) {
  const Qt::Alignment side = alignmentFor(textAlignmentOf(titleAlignment_), {});
  if (side.testFlag(Qt::AlignHCenter)) {
    QPushButton::paintEvent(event);
    return;
  }
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  QStyleOptionButton label = option;
  const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  constexpr int kGapOfStyles = 4;
  const int icon = option.icon.isNull() ? 0 : option.iconSize.width() + kGapOfStyles;
  const int width = fontMetrics().size(Qt::TextShowMnemonic, option.text).width() + icon;
  label.rect =
      QStyle::alignedRect(Qt::LeftToRight, side | Qt::AlignVCenter,
                          QSize(std::min(width, contents.width()), contents.height()), contents);
  painter.drawControl(QStyle::CE_PushButtonLabel, label);
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

void UILocalizedButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::LayoutDirectionChange) {
    adapter_->titleLabel().renewSides();
  }
}

}  // namespace orvanta::qt
