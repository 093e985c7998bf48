// The code of docs/fonts.md and docs/porting.md: a toolkit's label that localizes itself. The
// argument is a folder with tables.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/MemoryControls.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardPlatform.h>

namespace toolkit {

/// A label of some toolkit.
class Label {
 public:
  void show(const std::string& text, const std::string& family) {
    shown_ = text + " [" + family + ']';
  }
  [[nodiscard]] const std::string& shown() const { return shown_; }

 private:
  std::string shown_;
};

}  // namespace toolkit

namespace {

class LabelAdapter : public orvanta::standard::MemoryLabel {
 public:
  explicit LabelAdapter(toolkit::Label& label) : label_(label) {}

  void setText(const orvanta::String& text) override {
    orvanta::standard::MemoryLabel::setText(text);
    show();
  }
  void setFont(const std::shared_ptr<const orvanta::platform::Font>& font) override {
    orvanta::standard::MemoryLabel::setFont(font);
    show();
  }

 private:
  void show() {
    label_.show(text().str(), font() == nullptr ? "default" : font()->fontName().str());
  }

  toolkit::Label& label_;
};

void setUpPlatform(const std::string& folder,
                   std::shared_ptr<orvanta::platform::FontSystem> toolkitFonts) {
  orvanta::platform::Platform replacements;
  replacements.fonts = std::move(toolkitFonts);  // Null members stay the standard ones.
  orvanta::platform::Platform::install(
      orvanta::standard::makeStandardPlatform({.mainBundlePath = folder}, std::move(replacements)));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    return EXIT_FAILURE;
  }
  setUpPlatform(argv[1], nullptr);
  namespace fonts = orvanta::localizationUtilities;
  toolkit::Label heading;
  const auto adapter = std::make_shared<LabelAdapter>(heading);
  adapter->setText("signin.title");
  adapter->setFont(fonts::ovBoldSystemFontOfSize(20));
  orvanta::UILocalizedLabel localized(adapter);
  localized.awakeFromNib();

  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"ar"}, {});
  while (orvanta::standard::RunLoop::main()->runPending() > 0) {
  }
  std::cout << heading.shown() << '\n';
}
