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
  return hasBundleForLookUp() && key.isPresent() ? textOrKey(key.view(), key) : String();
}

String Localizer::localizedStringForKey(std::string_view key) {
  return hasBundleForLookUp() ? textOrKey(key, key) : String();
}

// What nearly every look-up needs, without a call on the way: the tables that are in memory.
template <typename Key>
[[gnu::always_inline]] inline String Localizer::textOrKey(std::string_view characters,
                                                          const Key& key) {
  if (defaultLocaleBundle_ == nullptr) {
    // Whether or not the current language has the text: the first look-up settles the memo.
    static_cast<void>(defaultLocaleBundle());
  }
  const HashedKey hashed(characters);
  const strings::StringTable* table = currentLanguageBundle_->loadedDefaultTable();
  if (table == nullptr) {
    return textElsewhereOrKey(hashed, key);
  }
  std::string_view text = table->find(hashed);
  if (text.data() == nullptr) {
    table = defaultLocaleBundle_ == nullptr ? nullptr : defaultLocaleBundle_->loadedDefaultTable();
    if (table == nullptr) {
      return textElsewhereOrKey(hashed, key);
    }
    text = table->find(hashed);
    if (text.empty()) {
      // An empty English text is an empty default value, which gives way to the key.
      return String(key);
    }
  }
  return table->handleTo(text);
}

// The same where not all tables are in memory yet.
template <typename Key>
String Localizer::textElsewhereOrKey(HashedKey hashed, const Key& key) {
  String text = currentLanguageBundle_->textForKey(hashed, {});
  const Bundle* english = defaultLocaleBundle_;
  if (text.isAbsent() && english != nullptr && english != currentLanguageBundle_.get()) {
    text = english->textForKey(hashed, {});
    if (text.empty()) {
      text = {};
    }
  }
  return text.isAbsent() ? String(key) : text;
}

bool Localizer::hasBundleForLookUp() {
  if (currentLanguageBundle_ == nullptr) {
    useDefaultLocale();
  }
  return currentLanguageBundle_ != nullptr;
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
