#include <QFontInfo>
#include <utility>

#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtFont.h>

namespace orvanta::qt {

namespace {

using platform::SymbolicTraits;

QString styleNameOf(const QFont& font) {
  if (!font.styleName().isEmpty()) {
    return font.styleName();
  }
  const bool bold = font.bold();
  const bool italic = font.italic();
  return QLatin1String(bold && italic ? "Bold Italic" : bold ? "Bold" : italic ? "Italic" : "");
}

}  // namespace

QtFont::QtFont(const QFont& font, String name) : font_(font), name_(std::move(name)) {}

QtFont::~QtFont() = default;

String QtFont::fontName() const {
  return name_.isPresent()
             ? name_
             : fromQString(postScriptNameOf(QFontInfo(font()).family(), styleNameOf(font())));
}

double QtFont::pointSize() const {
  const QFont font = this->font();
  return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

SymbolicTraits QtFont::symbolicTraits() const {
  const QFont font = this->font();
  return (font.bold() ? platform::kBoldTrait : 0U) | (font.italic() ? platform::kItalicTrait : 0U);
}

std::shared_ptr<const platform::Font> QtFont::fontWithSize(double size) const {
  QFont sized = font();
  sized.setPointSizeF(size);
  return std::make_shared<QtFont>(sized, name_);
}

std::shared_ptr<const platform::Font> QtFont::fontWithSymbolicTraits(SymbolicTraits traits) const {
  QFont styled = font();
  styled.setStyleName(QString());
  styled.setBold((traits & platform::kBoldTrait) != 0);
  styled.setItalic((traits & platform::kItalicTrait) != 0);
  return std::make_shared<QtFont>(styled, name_);
}

QString postScriptNameOf(const QString& family, const QString& style) {
  const QString name = QString(family).remove(QLatin1Char(' '));
  const bool regular = style.isEmpty() || style == QLatin1String("Regular") ||
                       style == QLatin1String("Book") || style == QLatin1String("Normal");
  return regular ? name : name + QLatin1Char('-') + QString(style).remove(QLatin1Char(' '));
}

}  // namespace orvanta::qt
