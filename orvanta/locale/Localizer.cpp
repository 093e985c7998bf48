// The current language: start-up, change, look-up, and the plain properties.
#include <utility>

#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/SystemInfo.h>
#include <orvanta/platform/Platform.h>

namespace orvanta {

using platform::Bundle;
using platform::Platform;

namespace {

// Holds its two lists itself, so that what is posted is not touched by later changes.
void postLater(const StringList& adopted, StringList raw) {
  Platform::current().mainQueue->dispatchAsync([adopted, raw = std::move(raw)] {
    Platform::current().notifications->postNotification(
        {String::fromStatic(OVPreferredLocaleDidChangeNotification), nullptr,
         Dictionary<StringList>{{String::fromStatic(OVPreferredLocaleKey), adopted},
                                {String::fromStatic(OVRawLocaleKey), raw}}});
  });
}

}  // namespace

Localizer& Localizer::sharedLocalizer() {
  static auto* const shared = new Localizer;
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
    // Nothing suits the device, or it asks for nothing and there is no English, or an application's
    // own fallback table leads on from what it led to: English unchecked, once and for all.
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

void Localizer::adopt(const StringList& matched, StringList raw) {
  currentLanguageBundle_ = languageBundleForLocale(matched.front());
  preferredLocales_ = matched;
  rightToLeftOrientation_ = rightToLeftOrientationForLocale(matched.front());
  postLater(matched, std::move(raw));
}

void Localizer::updatePreferredLocales(const StringList& languages, const String& country) {
  currentLanguageBundle_ = nullptr;
  originalLocales_ = country.isPresent() ? localesFromLanguages(languages, country) : languages;
  // A copy of the handle: whoever is called back may set the property.
  const StringList requested = originalLocales_;
  changeOrvantaLanguageToPreferredLocales(requested);
}

String Localizer::localizedStringForKey(const String& key) {
  if (!hasBundleForLookUp() || key.isAbsent()) {
    return {};
  }
  String text = textInCurrentLanguageOrEnglish(key.view());
  return text.isPresent() ? text : key;
}

String Localizer::localizedStringForKey(std::string_view key) {
  if (!hasBundleForLookUp()) {
    return {};
  }
  String text = textInCurrentLanguageOrEnglish(key);
  return text.isPresent() ? text : String(key);
}

bool Localizer::hasBundleForLookUp() {
  if (currentLanguageBundle_ == nullptr) {
    useDefaultLocale();
  }
  return currentLanguageBundle_ != nullptr;
}

String Localizer::textInCurrentLanguageOrEnglish(std::string_view key) {
  // Read whether or not the current language has the text: the first look-up settles the memo.
  const Bundle* english = defaultLocaleBundle();
  const HashedKey hashed(key);
  String text = currentLanguageBundle_->textForKey(hashed, {});
  if (text.isPresent() || english == currentLanguageBundle_.get() || english == nullptr) {
    return text;
  }
  text = english->textForKey(hashed, {});
  // An empty English text is an empty default value, which gives way to the key.
  return text.empty() ? String() : text;
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
}

void Localizer::setMainBundle(std::shared_ptr<Bundle> bundle) noexcept {
  mainBundle_ = std::move(bundle);
}

void Localizer::setDefaultLocaleBundle(Bundle* bundle) noexcept {
  defaultLocaleBundle_ = bundle;
}

void Localizer::setFallbackTable(FallbackTable table) noexcept {
  fallbackTable_ = std::move(table);
}

OVStringCache& Localizer::stringCache() {
  if (stringCache_ == nullptr) {
    stringCache_ = std::make_shared<OVStringCache>();
  }
  return *stringCache_;
}

void Localizer::setStringCache(std::shared_ptr<OVStringCache> cache) noexcept {
  stringCache_ = std::move(cache);
}

}  // namespace orvanta
