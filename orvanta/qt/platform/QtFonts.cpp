#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHash>
#include <optional>
#include <utility>

#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/standard/TrueTypeFace.h>

namespace orvanta::qt {

namespace {

using platform::Font;
using platform::FontWeight;
using platform::SymbolicTraits;
using FontPointer = std::shared_ptr<const Font>;

QString withoutBlanks(QString text) {
  return text.remove(QLatin1Char(' '));
}

QString postScriptNameOf(const QString& family, const QString& style) {
  const QString name = withoutBlanks(family);
  const bool regular = style.isEmpty() || style == QLatin1String("Regular") ||
                       style == QLatin1String("Book") || style == QLatin1String("Normal");
  return regular ? name : name + QLatin1Char('-') + withoutBlanks(style);
}

QString styleNameOf(const QFont& font) {
  if (!font.styleName().isEmpty()) {
    return font.styleName();
  }
  const bool bold = font.bold();
  const bool italic = font.italic();
  return QLatin1String(bold && italic ? "Bold Italic" : bold ? "Bold" : italic ? "Italic" : "");
}

class QtFont final : public Font {
 public:
  // An absent name: the one that Qt's family and style make.
  explicit QtFont(const QFont& font, String name = {}) : font_(font), name_(std::move(name)) {}

  const QFont& font() const { return font_; }

  String fontName() const override {
    return name_.isPresent()
               ? name_
               : fromQString(postScriptNameOf(QFontInfo(font_).family(), styleNameOf(font_)));
  }

  // A font that was sized in pixels has no size in points but the one that it comes to.
  double pointSize() const override {
    return font_.pointSizeF() > 0 ? font_.pointSizeF() : QFontInfo(font_).pointSizeF();
  }

  SymbolicTraits symbolicTraits() const override {
    return (font_.bold() ? platform::kBoldTrait : 0U) |
           (font_.italic() ? platform::kItalicTrait : 0U);
  }

  FontPointer fontWithSize(double size) const override {
    QFont sized = font_;
    sized.setPointSizeF(size);
    return std::make_shared<QtFont>(sized, name_);
  }

  FontPointer fontWithSymbolicTraits(SymbolicTraits traits) const override {
    QFont styled = font_;
    styled.setStyleName(QString());
    styled.setBold((traits & platform::kBoldTrait) != 0);
    styled.setItalic((traits & platform::kItalicTrait) != 0);
    return std::make_shared<QtFont>(styled, name_);
  }

 private:
  QFont font_;
  String name_;
};

// The device's scale is finer than what faces come in.
QFont::Weight qtWeight(FontWeight weight) {
  struct Step {
    FontWeight below;
    QFont::Weight weight;
  };
  static constexpr Step kSteps[] = {{-0.7, QFont::Thin},   {-0.5, QFont::ExtraLight},
                                    {-0.2, QFont::Light},  {0.1, QFont::Normal},
                                    {0.27, QFont::Medium}, {0.35, QFont::DemiBold},
                                    {0.48, QFont::Bold},   {0.6, QFont::ExtraBold}};
  for (const Step& step : kSteps) {
    if (weight < step.below) {
      return step.weight;
    }
  }
  return QFont::Black;
}

class QtFonts final : public platform::FontSystem {
 public:
  FontPointer fontWithName(const String& name, double size) override {
    if (qGuiApp == nullptr || name.empty()) {
      return nullptr;
    }
    const QString wanted = toQString(name);
    if (const auto face = registered_.constFind(wanted); face != registered_.constEnd()) {
      return std::make_shared<QtFont>(sized(*face, size), name);
    }
    const std::optional<QFont> installed = installedFont(wanted, size);
    return installed ? std::make_shared<QtFont>(*installed, name) : nullptr;
  }

  FontPointer systemFontOfSize(double size, FontWeight weight) override {
    if (qGuiApp == nullptr) {
      return nullptr;
    }
    QFont font = sized(QGuiApplication::font(), size);
    font.setWeight(qtWeight(weight));
    return std::make_shared<QtFont>(font);
  }

  bool registerFontData(std::span<const std::byte> data) override {
    const std::optional<standard::TrueTypeFace> face = standard::readTrueTypeFace(data);
    if (qGuiApp == nullptr || !face) {
      return false;
    }
    const QString name = QString::fromStdString(face->postScriptName);
    if (registered_.contains(name) || installedFont(name, 1)) {
      return false;
    }
    const int id = QFontDatabase::addApplicationFontFromData(
        QByteArray(reinterpret_cast<const char*>(data.data()), qsizetype(data.size())));
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
      return false;
    }
    QFont font;
    // Letters that the face lacks are drawn in the system's.
    font.setFamilies(QStringList(families.front()) + QGuiApplication::font().families());
    // Without these Qt takes the face for a regular one, whatever it looks like.
    font.setBold((face->traits & platform::kBoldTrait) != 0);
    font.setItalic((face->traits & platform::kItalicTrait) != 0);
    registered_.insert(name, font);
    return true;
  }

 private:
  static QFont sized(QFont font, double size) {
    font.setPointSizeF(size);
    return font;
  }

  static std::optional<QFont> installedFont(const QString& name, double size) {
    for (const QString& family : QFontDatabase::families()) {
      if (!name.startsWith(withoutBlanks(family))) {
        continue;
      }
      for (const QString& style : QFontDatabase::styles(family)) {
        if (postScriptNameOf(family, style) == name) {
          return sized(QFontDatabase::font(family, style, 1), size);
        }
      }
    }
    return std::nullopt;
  }

  QHash<QString, QFont> registered_;
};

}  // namespace

// Most widgets of a window share one font, and then one handle to it.
FontPointer fontHandle(const QFont& font) {
  thread_local std::weak_ptr<const QtFont> lately;
  std::shared_ptr<const QtFont> handle = lately.lock();
  if (handle == nullptr || !handle->font().isCopyOf(font) ||
      handle->font().resolveMask() != font.resolveMask()) {
    handle = std::make_shared<const QtFont>(font);
    lately = handle;
  }
  return handle;
}

QFont toQFont(const FontPointer& font) {
  if (font == nullptr) {
    return {};
  }
  if (const auto* own = dynamic_cast<const QtFont*>(font.get())) {
    return own->font();
  }
  QFont similar(toQString(font->fontName()));
  similar.setPointSizeF(font->pointSize());
  similar.setBold((font->symbolicTraits() & platform::kBoldTrait) != 0);
  similar.setItalic((font->symbolicTraits() & platform::kItalicTrait) != 0);
  return similar;
}

std::shared_ptr<platform::FontSystem> makeQtFonts() {
  return std::make_shared<QtFonts>();
}

}  // namespace orvanta::qt
