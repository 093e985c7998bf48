#include <functional>
#include <utility>

#include <orvanta/controls/LocalizedControl.h>
#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>

namespace orvanta {

namespace {

using platform::MainQueue;
using platform::Platform;

MainQueue& mainQueue() {
  return *Platform::current().mainQueue;
}

// A handle of its own: whoever is called back may change the language.
StringList currentLocales() {
  return Localizer::sharedLocalizer().currentLocales();
}

}  // namespace

LocalizedControl::LocalizedControl(std::shared_ptr<void> driven, LocaleOnTheWay onTheWay)
    : driven_(std::move(driven)),
      anchor_(std::make_shared<MainThreadAnchor>(*this)),
      onTheWay_(onTheWay) {}

LocalizedControl::~LocalizedControl() {
  Platform::current().notifications->removeObserver(this);
  anchor_->letGo();
}

void LocalizedControl::handleOVPreferredLocaleDidChangeNotification(
    const platform::Notification* /*notification*/) {
  const StringList locales = currentLocales();
  if (!locales.empty()) {
    refreshOnMainThread(locales.front());
  }
}

void LocalizedControl::refreshOnMainThread(const String& locale) {
  if (mainQueue().isMainThread()) {
    refreshHere(locale);
    return;
  }
  const String carried = onTheWay_ == LocaleOnTheWay::kept ? locale : String();
  onMainThread([this, &carried] { refreshHere(carried); });
}

void LocalizedControl::followLanguage() {
  Hold(*this).takeSteps([&] { handleOVPreferredLocaleDidChangeNotification(nullptr); },
                        [&] { observeLanguageChanges(); });
}

void LocalizedControl::observeLanguageChanges() {
  // The handler holds the anchor, not the control: on another thread the control may die at any
  // moment. What it needs of the control there, it takes with it.
  Platform::current().notifications->addObserver(
      this, String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr,
      [anchor = anchor_, onTheWay = onTheWay_](const platform::Notification& /*notification*/) {
        const StringList locales = currentLocales();
        if (locales.empty()) {
          return;
        }
        if (mainQueue().isMainThread()) {
          if (LocalizedControl* control = anchor->control()) {
            control->refreshHere(locales.front());
          }
          return;
        }
        const String carried = onTheWay == LocaleOnTheWay::kept ? locales.front() : String();
        mainQueue().performOnMainThreadAndWait([&] {
          if (LocalizedControl* control = anchor->control()) {
            control->refreshHere(carried);
          }
        });
      });
}

void LocalizedControl::later(std::function<void()> step) const {
  mainQueue().dispatchAsync(
      [weak = std::weak_ptr<MainThreadAnchor>(anchor_), step = std::move(step)] {
        const auto anchor = weak.lock();
        if (anchor != nullptr && anchor->control() != nullptr) {
          step();
        }
      });
}

void LocalizedControl::onMainThread(const std::function<void()>& step) const {
  mainQueue().performOnMainThreadAndWait([anchor = anchor_, &step] {
    if (anchor->control() != nullptr) {
      step();
    }
  });
}

bool LocalizedControl::isKey(const String& text) {
  if (text.empty()) {
    return false;
  }
  const String found = localized(text);
  return !found.empty() && found != text;
}

String LocalizedControl::localized(const String& key) {
  return Localizer::sharedLocalizer().localizedStringForKey(key);
}

void LocalizedControl::refreshAccessibility(platform::Accessible& control, const Hold& hold) const {
  hold.takeSteps(
      [&] {
        if (!originalAccessibilityLabel_.empty()) {
          control.setAccessibilityLabel(localized(originalAccessibilityLabel_));
        }
      },
      [&] {
        if (!originalAccessibilityHint_.empty()) {
          control.setAccessibilityHint(localized(originalAccessibilityHint_));
        }
      });
}

void LocalizedControl::refreshStyle(platform::TextStyle& style, const String& locale,
                                    const Hold& hold) const {
  hold.takeSteps(
      [&] { style.setFont(localizationUtilities::ovFontForLocale(locale, originalFont_)); },
      [&] {
        style.setTextAlignment(
            localizationUtilities::ovAlignmentForLocale(locale, originalAlignment_));
      });
}

void LocalizedControl::rememberStyle(const platform::TextStyle& style) {
  originalFont_ = style.font();
  originalAlignment_ = style.textAlignment();
}

}  // namespace orvanta
