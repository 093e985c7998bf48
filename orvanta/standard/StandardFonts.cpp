#include <optional>
#include <utility>

#include <orvanta/standard/StandardFonts.h>
#include <orvanta/standard/TrueTypeFace.h>
#include <orvanta/text/Dictionary.h>

namespace orvanta::standard {

namespace {

constexpr platform::FontWeight kLightestBoldWeight = 0.3;

class CatalogueFont final : public platform::Font {
 public:
  CatalogueFont(String name, double size, platform::SymbolicTraits traits)
      : name_(std::move(name)), size_(size), traits_(traits) {}

  String fontName() const override { return name_; }
  double pointSize() const override { return size_; }
  platform::SymbolicTraits symbolicTraits() const override { return traits_; }

  std::shared_ptr<const platform::Font> fontWithSize(double size) const override {
    return std::make_shared<CatalogueFont>(name_, size, traits_);
  }
  std::shared_ptr<const platform::Font> fontWithSymbolicTraits(
      platform::SymbolicTraits traits) const override {
    return std::make_shared<CatalogueFont>(name_, size_, traits);
  }

 private:
  String name_;
  double size_;
  platform::SymbolicTraits traits_;
};

class CatalogueFonts final : public platform::FontSystem {
 public:
  std::shared_ptr<const platform::Font> fontWithName(const String& name,
                                                     double size) const override {
    const auto face = name.isAbsent() ? faces_.end() : faces_.find(name);
    if (face == faces_.end()) {
      return nullptr;
    }
    return std::make_shared<CatalogueFont>(face->first, size, face->second);
  }

  std::shared_ptr<const platform::Font> systemFontOfSize(
      double size, platform::FontWeight weight) const override {
    const platform::SymbolicTraits traits =
        weight >= kLightestBoldWeight ? platform::kBoldTrait : 0;
    return std::make_shared<CatalogueFont>(systemName_, size, traits);
  }

  bool registerFontData(std::span<const std::byte> data) override {
    const std::optional<TrueTypeFace> face = readTrueTypeFace(data);
    return face && faces_.emplace(face->postScriptName, face->traits).second;
  }

 private:
  String systemName_ = "System"_s;
  Dictionary<platform::SymbolicTraits>::Map faces_{{systemName_, platform::SymbolicTraits{0}}};
};

}  // namespace

std::shared_ptr<platform::FontSystem> makeStandardFonts() {
  return std::make_shared<CatalogueFonts>();
}

}  // namespace orvanta::standard
