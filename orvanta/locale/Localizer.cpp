// The current language: start-up, change, and the plain properties.
#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/SystemInfo.h>
#include <orvanta/locale/Version.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta {

using platform::Bundle;
using platform::Platform;

namespace {

// Brings the version's text, which tools look for in binaries, into a program that is linked
// statically and does not refer to it.
[[gnu::used]] const unsigned char* const versionText = OrvantaLocalizerVersionString;

platform::Notification changeOf(const StringList& adopted, const StringList& raw) {
  return {String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr,
          Dictionary<StringList>{{String::fromStatic(OVPreferredLocaleKey), adopted},
                                 {String::fromStatic(OVRawLocaleKey), raw}}};
}

}  // namespace

Localizer& Localizer::sharedLocalizer() {
  static NoDestructor<Localizer> shared;
  return *shared;
}

Localizer::Localizer() : mainBundle_(Platform::current().bundles->mainBundle()) {
  useDefaultLocale();
}

Localizer::~Localizer() = default;

void Localizer::useDefaultLocale() {
  const StringList ranked =
      mainBundle_ == nullptr ? StringList() : mainBundle_->preferredLocalizations();
  StringList requested = availableLocalesFromArray(ranked);
  StringList matched = requested.empty() ? StringList() : availableLocalesFromArray(requested);
  if (matched.empty()) {
    // No shipped language suits the device, or the device names none and there is no English, or
    // an application's fallback table does not map its own results to themselves. English without
    // a check ends the recursion in every case.
    requested = StringList::emptyList();
    matched = availableLocalesFromArray(requested);
  }
  adopt(matched, requested);
}

void Localizer::changeOrvantaLanguageToPreferredLocales(const StringList& requested) {
  const StringList matched = availableLocalesFromArray(requested);
  if (matched.empty()) {
    useDefaultLocale();
  } else {
    adopt(matched, requested.isAbsent() ? matched : requested);
  }
}

void Localizer::adopt(const StringList& matched, const StringList& raw) {
  platform::Notification change = changeOf(matched, raw);
  // May build the catalogue, which opens the bundles that are refreshed here.
  std::shared_ptr<Bundle> bundle = languageBundleForLocale(matched.front());
  Platform::current().bundles->refreshTables();

  setCurrentLanguageBundle(std::move(bundle));
  preferredLocales_ = matched;
  adoptedRequest_ = raw;
  rightToLeftOrientation_ = rightToLeftOrientationForLocale(matched.front());

  Platform::current().mainQueue->dispatchAsync([change = std::move(change)] {
    Platform::current().notifications->postNotification(change);
  });
}

void Localizer::updatePreferredLocales(const StringList& languages, const String& country) {
  setCurrentLanguageBundle(nullptr);
  originalLocales_ = country.isPresent() ? localesFromLanguages(languages, country) : languages;
  // A copy of the handle: a callback of a platform may set the property meanwhile.
  const StringList requested = originalLocales_;
  changeOrvantaLanguageToPreferredLocales(requested);
}

String Localizer::currentLocalesString() const {
  return preferredLocales_.isAbsent() ? String::fromStatic(lastResortLocale)
                                      : componentsJoinedBy(',', preferredLocales_);
}

StringList Localizer::devicePreferredLocales() const {
  return Platform::current().locales->preferredLanguages();
}

std::shared_ptr<platform::Calendar> Localizer::currentCalendar() const {
  auto calendar = Platform::current().locales->currentCalendar();
  if (!preferredLocales_.empty()) {
    calendar->setLocale(platform::Locale(preferredLocales_.front()));
  }
  return calendar;
}

bool Localizer::isIOS9Minimum() const {
  static const bool minimum = SystemInfo::isAtLeastMajorVersion(9, 0, 0);
  return minimum;
}

void Localizer::setRightToLeftOrientation(bool rightToLeft) noexcept {
  rightToLeftOrientation_ = rightToLeft;
}

void Localizer::setOriginalLocales(StringList locales) noexcept {
  originalLocales_ = std::move(locales);
}

void Localizer::setPreferredLocales(StringList locales) noexcept {
  preferredLocales_ = std::move(locales);
}

void Localizer::setCurrentLanguageBundle(std::shared_ptr<Bundle> bundle) noexcept {
  currentLanguageBundle_ = std::move(bundle);
  resetChain();
}

void Localizer::setMainBundle(std::shared_ptr<Bundle> bundle) noexcept {
  mainBundle_ = std::move(bundle);
  resetChain();
}

void Localizer::setDefaultLocaleBundle(Bundle* bundle) noexcept {
  // Without a count: owns nothing.
  defaultLocaleBundle_ = std::shared_ptr<Bundle>(std::shared_ptr<Bundle>(), bundle);
  resetChain();
}

void Localizer::setFallbackTable(FallbackTable table) noexcept {
  fallbackTable_ = std::move(table);
}

void Localizer::setStringCache(std::shared_ptr<OVStringCache> cache) noexcept {
  stringCache_ = std::move(cache);
  resetChain();
}

}  // namespace orvanta
