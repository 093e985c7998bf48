#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QList>
#include <optional>

#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/QtFont.h>
#include <orvanta/qt/platform/QtFonts.h>
#include <orvanta/standard/TrueTypeFace.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::qt {

namespace {

using platform::Font;
using platform::FontWeight;
using FontPointer = std::shared_ptr<const Font>;

// The library's scale of weights is finer than the weights that Qt names.
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

// The files of all faces that were registered in this process.
QList<QByteArray>& registeredFiles() {
  static NoDestructor<QList<QByteArray>> files;
  return *files;
}

// Qt forgets an application's fonts with the application object.
void registerAgainForNewApplication() {
  for (const QByteArray& file : registeredFiles()) {
    QFontDatabase::addApplicationFontFromData(file);
  }
}

// The families in the file; none when Qt cannot read it.
QStringList addForEveryApplication(const QByteArray& file) {
  QStringList families =
      QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(file));
  if (!families.isEmpty()) {
    if (registeredFiles().isEmpty()) {
      qAddPreRoutine(registerAgainForNewApplication);
    }
    registeredFiles().append(file);
  }
  return families;
}

class QtFonts final : public platform::FontSystem {
 public:
  FontPointer fontWithName(const String& name, double size) const override {
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

  FontPointer systemFontOfSize(double size, FontWeight weight) const override {
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
    const QStringList families = addForEveryApplication(
        QByteArray(reinterpret_cast<const char*>(data.data()), qsizetype(data.size())));
    if (families.isEmpty()) {
      return false;
    }
    QFont font;
    // Letters that the face lacks are drawn in the application's font.
    font.setFamilies(QStringList(families.front()) + QGuiApplication::font().families());
    // Qt takes a face for regular and upright unless told otherwise, whatever it looks like.
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
      if (!name.startsWith(QString(family).remove(QLatin1Char(' ')))) {
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

FontPointer fontHandle(const QFont& font) {
  return std::make_shared<const QtFont>(font);
}

QFont toQFont(const FontPointer& font) {
  if (font == nullptr) {
    return {};
  }
  if (const auto* qtFont = dynamic_cast<const QtFont*>(font.get())) {
    return qtFont->font();
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
