// A walk through languages without a screen: the controls only remember what they are told, and the
// main queue is a run loop that this program turns itself.
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/MemoryControls.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardPlatform.h>

namespace {

using orvanta::Localizer;
using orvanta::StringList;
using orvanta::platform::Platform;
using orvanta::platform::TextAlignment;
using orvanta::standard::MemoryButton;
using orvanta::standard::MemoryLabel;
using orvanta::standard::RunLoop;

std::string_view nameOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::left:
      return "left";
    case TextAlignment::right:
      return "right";
    default:
      return "natural";
  }
}

void showLook(const char* what, const orvanta::String& text,
              const orvanta::platform::TextStyle& style) {
  std::cout << "  " << std::left << std::setw(7) << what << text << "   ["
            << style.font()->fontName() << ' ' << style.font()->pointSize() << ", "
            << nameOf(style.textAlignment()) << "]\n";
}

// A screen with a heading and a button. Their texts are keys, as they would stand in a layout.
class Screen {
 public:
  Screen() {
    const auto fonts = Platform::current().fonts;
    heading_->setText("signin.title");
    heading_->setFont(fonts->systemFontOfSize(20, orvanta::platform::kFontWeightBold));
    heading_->setTextAlignment(TextAlignment::left);
    button_->setTitle("order.place", orvanta::platform::kControlStateNormal);
    button_->titleLabel().setFont(
        fonts->systemFontOfSize(13, orvanta::platform::kFontWeightRegular));
    button_->titleLabel().setTextAlignment(TextAlignment::right);
    localizedHeading_.awakeFromNib();
    localizedButton_.awakeFromNib();
  }

  void show() const {
    showLook("label", heading_->text(), *heading_);
    showLook("button", button_->titleForState(orvanta::platform::kControlStateDisabled),
             button_->titleLabel());
  }

 private:
  std::shared_ptr<MemoryLabel> heading_ = std::make_shared<MemoryLabel>();
  std::shared_ptr<MemoryButton> button_ = std::make_shared<MemoryButton>();
  orvanta::UILocalizedLabel localizedHeading_{heading_};
  orvanta::UILocalizedButton localizedButton_{button_};
};

// A text that some of the languages lack.
void showOpening(Localizer& localizer) {
  const orvanta::String key = "tour.opening";
  const auto& bundle = localizer.currentLanguageBundle();
  const bool translated = bundle != nullptr && bundle->localizedStringForKey(key) != key;
  std::cout << "  text   " << localizer.localizedStringForKey(key)
            << (translated ? "" : "   [not translated: English stands in]") << '\n';
}

// Lets the main queue deliver what is due, and shows what the language did to everything.
void settle(const Screen& screen) {
  Localizer& localizer = Localizer::sharedLocalizer();
  while (RunLoop::main()->runPending() > 0) {
  }
  screen.show();
  std::cout << "  list   "
            << localizer.stringWithLocalizedPunctuation(
                   localizer.localizedStringForKey("order.list"))
            << '\n';
  showOpening(localizer);
}

struct Stop {
  const char* why;
  StringList languages;
  orvanta::String country;
};

void visit(const Stop& stop, const Screen& screen) {
  std::cout << "\n" << stop.why << "\n  asked for " << stop.languages;
  if (stop.country.isPresent()) {
    std::cout << " in " << stop.country;
  }
  std::cout << '\n';
  Localizer::sharedLocalizer().updatePreferredLocales(stop.languages, stop.country);
  settle(screen);
}

void announce(const orvanta::platform::Notification& change) {
  const StringList* adopted = change.userInfo.find(orvanta::OVPreferredLocaleKey);
  const StringList* raw = change.userInfo.find(orvanta::OVRawLocaleKey);
  if (adopted != nullptr && raw != nullptr) {
    std::cout << "  notified: now " << *adopted << ", of " << *raw << '\n';
  }
}

void tour() {
  Localizer& localizer = Localizer::sharedLocalizer();
  Platform::current().notifications->addObserver(
      &localizer, orvanta::String::fromStatic(orvanta::OVPreferredLocaleDidChangeNotification),
      nullptr, announce);
  std::cout << "The device speaks " << localizer.devicePreferredLocales() << "\n";
  const Screen screen;
  settle(screen);

  const Stop stops[] = {
      {"A language in a country, in which one text is missing", {"fr"}, "CA"},
      {"A language that ships under another name", {"en-NZ"}, {}},
      {"Right to left, in the library's Arabic face", {"ar"}, {}},
      {"Right to left, in the face it had", {"fa"}, {}},
      {"A region that means a script", {"zh-TW"}, {}},
  };
  for (const Stop& stop : stops) {
    visit(stop, screen);
  }

  std::cout << "\nA key that nobody translated comes back as itself: "
            << localizer.localizedStringForKey("order.unheard.of") << "\n\nBack to the device\n";
  localizer.useDefaultLocale();
  settle(screen);
}

}  // namespace

int main() {
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = DEMO_BUNDLE;
  options.cachesPath = DEMO_CACHES;
  Platform::install(orvanta::standard::makeStandardPlatform(options));
  tour();
}
