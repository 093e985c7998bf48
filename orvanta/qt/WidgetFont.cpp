#include <QScopedValueRollback>
#include <QStyle>
#include <QVariant>
#include <QWidget>
#include <optional>

#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/FontProperties.h>
#include <orvanta/qt/WidgetFont.h>
#include <orvanta/qt/platform/QtFont.h>
#include <orvanta/qt/platform/QtFonts.h>

namespace orvanta::qt {

namespace {

bool isSameOwnFont(const QFont& font, const QFont& other) {
  return font.resolveMask() == other.resolveMask() && font == other;
}

// The properties that were set on the widget itself or by a style sheet, under which nothing is
// inherited. A widget's mask also has those of its parents: what agrees with the parent is taken to
// come from it.
QFont ownFont(const QWidget& widget) {
  QFont font = widget.font();
  if (widget.testAttribute(Qt::WA_StyleSheet)) {
    return font;
  }
  uint own = widget.testAttribute(Qt::WA_SetFont) ? font.resolveMask() : 0;
  if (!widget.isWindow()) {
    const QFont& inherited = widget.parentWidget()->font();
    own &= ~agreement(own & inherited.resolveMask(), font, inherited);
  }
  font.setResolveMask(own);
  return font;
}

bool hasStyleSheet(const QStyle& style) {
  return style.inherits("QStyleSheetStyle");
}

}  // namespace

// While there is an override, the font that the widget had before it.
class WidgetFont::Base final : public QtFont {
 public:
  explicit Base(const QWidget& widget) : QtFont(QFont()), widget_(&widget) {}

  [[nodiscard]] QFont font() const override { return kept_ ? *kept_ : ownFont(*widget_); }
  void keep() { kept_ = ownFont(*widget_); }
  void follow() { kept_.reset(); }

 private:
  const QWidget* widget_;
  std::optional<QFont> kept_;
};

WidgetFont::WidgetFont(QWidget& widget) : widget_(widget), base_(std::make_shared<Base>(widget)) {}

// The application may still hold the handle.
WidgetFont::~WidgetFont() {
  if (override_ == nullptr) {
    base_->keep();
  }
}

WidgetFont::FontPointer WidgetFont::font() const {
  return override_ == nullptr ? base_ : override_;
}

void WidgetFont::setFont(const FontPointer& font) {
  const QScopedValueRollback<bool> changing(isChanging_, true);
  if (font == base_) {
    if (override_ != nullptr) {
      override_ = nullptr;
      showDesign();
      base_->follow();
    }
    return;
  }
  if (override_ == nullptr) {
    takeDesign();
  } else if (font == override_ && widget_.font().isCopyOf(shown_)) {
    return;
  }
  override_ = font;
  hasSizeOfBase_ = font != nullptr && font->pointSize() == base_->pointSize();
  showOverride();
}

void WidgetFont::takeDesign() {
  base_->keep();
  style_ = widget_.style();
  design_ = ownFont(widget_);
  sheetNamesFont_ = false;
  if (!widget_.testAttribute(Qt::WA_StyleSheet) || design_.resolveMask() == 0) {
    return;
  }
  const QFont withSheet = design_;
  if (widget_.testAttribute(Qt::WA_SetFont)) {
    widget_.style()->unpolish(&widget_);
    design_ = ownFont(widget_);
    widget_.style()->polish(&widget_);
  } else {
    design_.setResolveMask(0);
  }
  sheetNamesFont_ = !isSameOwnFont(design_, withSheet);
}

// Qt lays the font of the application's style sheet over a widget's own only when it polishes, and
// starts from the own font that it remembers, which may be one of an override.
void WidgetFont::showDesign() {
  constexpr auto kRememberedFont = "_q_styleSheetWidgetFont";
  if (sheetNamesFont_ && widget_.property(kRememberedFont).isValid()) {
    widget_.setProperty(kRememberedFont, QVariant());
  }
  widget_.setFont(design_);
  if (sheetNamesFont_) {
    widget_.style()->polish(&widget_);
  }
}

// What the override has as the base has it is not set, so that it follows the base. But a font that
// is set hides the one that an application's style sheet names.
QFont WidgetFont::overriddenDesign() const {
  const QFont font = toQFont(override_);
  uint properties = font.resolveMask();
  if (!sheetNamesFont_) {
    properties &= ~agreement(properties, font, base_->font());
    properties &= ~(hasSizeOfBase_ ? uint(QFont::SizeResolved) : 0U);
  }
  return withProperties(properties, font, design_);
}

void WidgetFont::showOverride() {
  requested_ = overriddenDesign();
  widget_.setFont(requested_);
  shown_ = widget_.font();
}

// The widget's font is the base now.
void WidgetFont::baseChanged() {
  style_ = widget_.style();
  sheetNamesFont_ =
      widget_.testAttribute(Qt::WA_StyleSheet) && !isSameOwnFont(ownFont(widget_), design_);
  base_->keep();
  const StringList locales = Localizer::sharedLocalizer().currentLocales();
  if (hasSizeOfBase_ && !locales.empty()) {
    const FontPointer derived = localizationUtilities::ovFontForLocale(locales.front(), base_);
    override_ = derived == base_ ? override_ : derived;
  }
  showOverride();
}

// Properties that the application left as the override has them are still designed as before.
void WidgetFont::takeFontOfApplication() {
  const QFont own = ownFont(widget_);
  const bool keepsFamily =
      (own.resolveMask() & QFont::FamiliesResolved) != 0 && own.families() == requested_.families();
  if (!keepsFamily) {
    design_ = own;
    return;
  }
  const uint unchanged = agreement(own.resolveMask() & requested_.resolveMask(), own, requested_);
  const uint changed = own.resolveMask() & ~unchanged;
  design_ = withProperties(changed, own, design_);
}

// Qt remembers the font that a widget has when a style sheet is laid over it.
void WidgetFont::beforeEvent(QEvent::Type type) {
  if (type == QEvent::Polish && override_ != nullptr && !isChanging_) {
    const QScopedValueRollback<bool> changing(isChanging_, true);
    widget_.setFont(design_);
  }
}

void WidgetFont::afterEvent(QEvent::Type type) {
  if (override_ == nullptr || isChanging_) {
    return;
  }
  const QScopedValueRollback<bool> changing(isChanging_, true);
  if (type == QEvent::Polish) {
    baseChanged();
  } else if (type == QEvent::StyleChange) {
    sheetNamesFont_ = widget_.testAttribute(Qt::WA_StyleSheet);
    showDesign();
    baseChanged();
  } else if (type == QEvent::FontChange && widget_.style() == style_ && !hasStyleSheet(*style_)) {
    takeFontOfApplication();
    showDesign();
    baseChanged();
  }
}

}  // namespace orvanta::qt
