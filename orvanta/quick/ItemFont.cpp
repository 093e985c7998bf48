#include <QVariant>

#include <orvanta/qt/FontProperties.h>
#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/quick/ItemFont.h>

namespace orvanta::quick {

namespace {

constexpr auto kFont = "font";

}  // namespace

// The application may hold the handle for longer than the item lives.
class ItemFont::Base final : public platform::Font {
 public:
  explicit Base(const ItemFont& item) : item_(&item) {}

  String fontName() const override { return now()->fontName(); }
  double pointSize() const override { return now()->pointSize(); }
  platform::SymbolicTraits symbolicTraits() const override { return now()->symbolicTraits(); }
  std::shared_ptr<const Font> fontWithSize(double size) const override {
    return now()->fontWithSize(size);
  }
  std::shared_ptr<const Font> fontWithSymbolicTraits(
      platform::SymbolicTraits traits) const override {
    return now()->fontWithSymbolicTraits(traits);
  }

  void release() { item_ = nullptr; }

 private:
  std::shared_ptr<const Font> now() const {
    return qt::fontHandle(item_ == nullptr ? QFont() : item_->baseFont());
  }

  const ItemFont* item_;
};

ItemFont::ItemFont(QQuickItem& item) : item_(item), base_(std::make_shared<Base>(*this)) {}

ItemFont::~ItemFont() {
  base_->release();
}

ItemFont::FontPointer ItemFont::font() const {
  return override_ == nullptr ? base_ : override_;
}

void ItemFont::setFont(const FontPointer& font) {
  if (font == override_ || (font == base_ && override_ == nullptr)) {
    return;
  }
  design_ = baseFont();
  override_ = font == base_ ? nullptr : font;
  const QFont shown = override_ == nullptr ? design_ : qt::toQFont(override_);
  item_.setProperty(kFont, qt::withProperties(shown.resolveMask(), shown, design_));
  shown_ = itemFont();
}

QFont ItemFont::itemFont() const {
  return item_.property(kFont).value<QFont>();
}

QFont ItemFont::baseFont() const {
  const QFont font = itemFont();
  if (override_ == nullptr) {
    return font;
  }
  const uint set = font.resolveMask() | shown_.resolveMask();
  return qt::withProperties(set & ~qt::agreement(set, font, shown_), font, design_);
}

}  // namespace orvanta::quick
