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

}  // namespace

LocalizedControl::LocalizedControl(std::shared_ptr<void> driven, CarriedLocale carriedLocale)
    : driven_(std::move(driven)),
      anchor_(std::make_shared<MainThreadAnchor>(*this)),
      carriedLocale_(carriedLocale) {}

LocalizedControl::~LocalizedControl() {
  if (observed_ != nullptr) {
    observed_->removeObserver(this);
  }
  anchor_->reset();
}

void LocalizedControl::handleOVPreferredLocaleDidChangeNotification(
    const platform::Notification* /*notification*/) {
  refreshForCurrentLocale(anchor_, carriedLocale_);
}

void LocalizedControl::refreshForCurrentLocale(const std::shared_ptr<MainThreadAnchor>& anchor,
                                               CarriedLocale carriedLocale) {
  const bool keepsLocale = carriedLocale == CarriedLocale::kept || mainQueue().isMainThread();
  onMainThread(anchor, [keepsLocale](LocalizedControl& control) {
    // Read here, because the main thread may change the language meanwhile. A handle of its own,
    // because a toolkit's control may change it inside the refresh.
    const StringList& locales = Localizer::sharedLocalizer().currentLocales();
    if (!locales.empty()) {
      const String locale = keepsLocale ? locales.front() : String();
      control.refresh(locale, Hold(control));
    }
  });
}

void LocalizedControl::refreshOnMainThread(const String& locale) {
  const bool keepsLocale = carriedLocale_ == CarriedLocale::kept || mainQueue().isMainThread();
  const String carried = keepsLocale ? locale : String();
  onMainThread(anchor_,
               [&carried](LocalizedControl& control) { control.refresh(carried, Hold(control)); });
}

void LocalizedControl::onMainThread(const std::shared_ptr<MainThreadAnchor>& anchor,
                                    const std::function<void(LocalizedControl&)>& step) {
  const auto take = [&step](const MainThreadAnchor& taken) {
    if (LocalizedControl* control = taken.control()) {
      step(*control);
    }
  };
  // At once, for the benchmark's row switch-qt-hidden.
  if (mainQueue().isMainThread()) {
    take(*anchor);
    return;
  }
  // A handle of its own: the control, and its anchor, may go while another thread waits here.
  const std::shared_ptr<MainThreadAnchor> held = anchor;
  mainQueue().performOnMainThreadAndWait([&held, &take] { take(*held); });
}

void LocalizedControl::onMainThread(const std::function<void()>& step) const {
  onMainThread(anchor_, [&step](LocalizedControl& /*control*/) { step(); });
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

void LocalizedControl::followLanguage() {
  Hold(*this).takeSteps([&] { handleOVPreferredLocaleDidChangeNotification(nullptr); },
                        [&] { observeLanguageChanges(); });
}

void LocalizedControl::observeLanguageChanges() {
  // Platforms are never freed.
  observed_ = Platform::current().notifications.get();
  // The handler holds the anchor, not the control: it may be called on another thread while the
  // control is being destroyed.
  observed_->addObserver(
      this, String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr,
      [anchor = anchor_, carriedLocale = carriedLocale_](const platform::Notification&) {
        refreshForCurrentLocale(anchor, carriedLocale);
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
