#include <optional>
#include <utility>

#include <orvanta/platform/Dictionary.h>
#include <orvanta/platform/standard/StandardFonts.h>
#include <orvanta/platform/standard/TrueTypeFace.h>

namespace orvanta::platform::standard {

namespace {

constexpr FontWeight kLightestBoldWeight = 0.3;

class CatalogueFont final : public Font {
 public:
  CatalogueFont(String name, double size, SymbolicTraits traits)
      : name_(std::move(name)), size_(size), traits_(traits) {}

  String fontName() const override { return name_; }
  double pointSize() const override { return size_; }
  SymbolicTraits symbolicTraits() const override { return traits_; }

  std::shared_ptr<const Font> fontWithSize(double size) const override {
    return std::make_shared<CatalogueFont>(name_, size, traits_);
  }
  std::shared_ptr<const Font> fontWithSymbolicTraits(SymbolicTraits traits) const override {
    return std::make_shared<CatalogueFont>(name_, size_, traits);
  }

 private:
  String name_;
  double size_;
  SymbolicTraits traits_;
};

class CatalogueFonts final : public FontSystem {
 public:
  std::shared_ptr<const Font> fontWithName(const String& name, double size) override {
    const auto face = name.isAbsent() ? faces_.end() : faces_.find(name);
    if (face == faces_.end()) {
      return nullptr;
    }
    return std::make_shared<CatalogueFont>(face->first, size, face->second);
  }

  std::shared_ptr<const Font> systemFontOfSize(double size, FontWeight weight) override {
    const SymbolicTraits traits = weight >= kLightestBoldWeight ? kBoldTrait : 0;
    return std::make_shared<CatalogueFont>(systemName_, size, traits);
  }

  bool registerFontData(std::span<const std::byte> data) override {
    const std::optional<TrueTypeFace> face = readTrueTypeFace(data);
    return face && faces_.emplace(face->postScriptName, face->traits).second;
  }

 private:
  String systemName_ = "System"_s;
  Dictionary<SymbolicTraits>::Map faces_{{systemName_, SymbolicTraits{0}}};
};

}  // namespace

std::shared_ptr<FontSystem> makeStandardFonts() {
  return std::make_shared<CatalogueFonts>();
}

}  // namespace orvanta::platform::standard
