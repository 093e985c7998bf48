#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <orvanta/cache/CachePath.h>
#include <orvanta/cache/CacheUpdate.h>
#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/StringsFileReplacement.h>
#include <orvanta/locale/LanguagePart.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/FormatArgument.h>

namespace orvanta {

namespace {

using platform::Bundle;
using platform::Platform;

StringList codesOf(const OVLocaleDictionary& languages) {
  std::vector<String> codes;
  codes.reserve(languages.size());
  for (const auto& [key, locale] : languages) {
    if (locale != nullptr) {
      codes.push_back(locale->orvantaLocaleName());
    }
  }
  return StringList(codes);
}

// Null when there is no record. A dictionary set by the application may map a key to null.
const OVLocale* recordUnder(const HashedKey& key, const OVLocaleDictionary& languages) {
  const auto* locale = languages.find(key);
  return locale == nullptr ? nullptr : locale->get();
}

// Whether any value is a text: the cache cannot store values of other types.
bool holdsTexts(const StringsPayload& table) {
  return std::any_of(table.entries().begin(), table.entries().end(),
                     [](const StringsPayload::Entry& entry) { return entry.second.isText(); });
}

StringsUpdate writeTable(CacheUpdate& update, const String& language, const StringsPayload& table) {
  const URL file =
      OVStringCacheUtilities::stringsFileURLForLanguage(update.cacheFolderURL(), language);
  const CachePath path = cachePathOf(file, update.cacheFolderURL());
  const Replacement replacement = update.writeStringsFile(table, path);
  logReplacement(replacement, file);
  if (!replacement.isInPlace) {
    return {language, StringsUpdate::Result::failed, file,
            replacement.status.localizedDescription()};
  }
  String reason;
  if (!replacement.status.ok()) {
    reason = "may not survive a loss of power: " + replacement.status.localizedDescription().str();
  } else if (path.isHidden()) {
    reason = "never listed, because a part of its name begins with a dot"_s;
  }
  return {language, StringsUpdate::Result::written, file, reason};
}

// Calls `refreshCache` when an update returns, and when it throws.
struct RefreshAtExit {
  OVStringCache& cache;
  ~RefreshAtExit() { cache.refreshCache(); }
};

}  // namespace

OVStringCache::OVStringCache() = default;
OVStringCache::~OVStringCache() = default;

const URL& OVStringCache::cacheDirectoryURL() {
  if (cacheDirectoryURL_.isAbsent()) {
    cacheDirectoryURL_ = OVStringCacheUtilities::cacheDirectoryURL();
  }
  return cacheDirectoryURL_;
}

void OVStringCache::setCacheDirectoryURL(URL url) {
  cacheDirectoryURL_ = std::move(url);
}

OVLocaleDictionary OVStringCache::mainBundleLocales() const {
  platform::BundleRegistry& bundles = *Platform::current().bundles;
  const std::shared_ptr<Bundle> mainBundle = bundles.mainBundle();
  const StringList names = mainBundle->localizations();
  if (names.isAbsent()) {
    return {};
  }
  OVLocaleDictionary::Map locales;
  locales.reserve(names.size());
  for (const String& name : names) {
    const String folder = mainBundle->pathForResource(name, "lproj"_s);
    if (auto locale = OVLocale::initWithUnreadBundle(bundles.bundleWithPath(folder))) {
      locales.insert_or_assign(name, std::move(locale));
    } else {
      locales.erase(name);
    }
  }
  return OVLocaleDictionary(std::move(locales));
}

bool OVStringCache::stringsFileExistsForBundle(const Bundle& bundle) const {
  return bundle.pathForResource("Localizable"_s, "strings"_s).isPresent();
}

OVLocaleDictionary OVStringCache::cachedLanguages() {
  if (cachedLanguages_.isAbsent() || cachedLanguagesAreStale_) {
    listCachedLanguages();
  }
  return cachedLanguages_;
}

void OVStringCache::listCachedLanguages() {
  const Platform& platform = Platform::current();
  OVLocaleDictionary::Map locales;
  const Status status = platform.files->enumerateDirectoryAtURL(
      cacheDirectoryURL(), [&](const URL& entry, bool isDirectory) {
        const auto bundle = isDirectory ? platform.bundles->bundleWithURL(entry) : nullptr;
        if (bundle == nullptr || !stringsFileExistsForBundle(*bundle)) {
          return;
        }
        if (auto locale = OVLocale::initWithBundle(bundle)) {
          const String key = locale->appleLocaleName();
          locales.insert_or_assign(key, std::move(locale));
        }
      });
  const bool isListed = status.ok() || status.is(std::errc::no_such_file_or_directory) ||
                        status.is(std::errc::not_a_directory);
  if (isListed || cachedLanguages_.isAbsent()) {
    cachedLanguages_ = OVLocaleDictionary(std::move(locales));
  }
  cachedLanguagesAreStale_ = status.isShortage();
}

void OVStringCache::setCachedLanguages(OVLocaleDictionary languages) {
  cachedLanguages_ = std::move(languages);
  cachedLanguagesAreStale_ = false;
}

OVLocaleDictionary OVStringCache::availableLanguages() {
  return languages();
}

const OVLocaleDictionary& OVStringCache::languages() {
  if (availableLanguages_.isPresent() && !availableLanguagesAreStale_) {
    return availableLanguages_;
  }
  const OVLocaleDictionary shipped = mainBundleLocales();
  const OVLocaleDictionary cached = cachedLanguages();
  const bool isComplete = shipped.isPresent() && !cachedLanguagesAreStale_;
  if (isComplete || availableLanguages_.isAbsent()) {
    OVLocaleDictionary::Map locales(shipped.begin(), shipped.end());
    for (const auto& [key, locale] : cached) {
      locales.insert_or_assign(key, locale);
    }
    availableLanguages_ = OVLocaleDictionary(std::move(locales));
  }
  availableLanguagesAreStale_ = !isComplete;
  return availableLanguages_;
}

void OVStringCache::setAvailableLanguages(OVLocaleDictionary languages) {
  availableLanguages_ = std::move(languages);
  availableLanguagesAreStale_ = false;
}

StringList OVStringCache::availableLanguageCodes() {
  return codesOf(availableLanguages());
}

StringList OVStringCache::cachedLanguageCodes() {
  return codesOf(cachedLanguages());
}

// These setters do nothing, because each call of the getter builds a new list.
void OVStringCache::setAvailableLanguageCodes(const StringList& /*codes*/) noexcept {}
void OVStringCache::setCachedLanguageCodes(const StringList& /*codes*/) noexcept {}

std::int32_t OVStringCache::indexOfFirstAvailableCachedLanguage(const StringList& languages) {
  using OVStringCacheUtilities::cleanedString;
  const OVLocaleDictionary available = availableLanguages();
  std::int32_t position = 0;
  for (const String& language : languages) {
    if (recordUnder(HashedKey(cleanedString(language).view()), available) != nullptr ||
        recordUnder(HashedKey(cleanedString(languagePart(language)).view()), available) !=
            nullptr) {
      return position;
    }
    ++position;
  }
  return static_cast<std::int32_t>(OVLocaleNotAvailable);
}

std::shared_ptr<Bundle> OVStringCache::bundleForLanguage(const String& language) {
  const auto* bundle = language.isAbsent() ? nullptr : findBundle(HashedKey(language.view()));
  return bundle == nullptr ? nullptr : *bundle;
}

bool OVStringCache::hasBundleForLanguage(const HashedKey& language) {
  return findBundle(language) != nullptr;
}

const std::shared_ptr<Bundle>* OVStringCache::findBundle(const HashedKey& language) {
  const auto under = [&](const HashedKey& key) -> const std::shared_ptr<Bundle>* {
    const OVLocale* record = recordUnder(key, languages());
    return record == nullptr || record->bundle() == nullptr ? nullptr : &record->bundle();
  };
  if (const std::shared_ptr<Bundle>* bundle = under(language)) {
    return bundle;
  }
  const std::string_view part = languagePart(language.text);
  return part.size() == language.text.size() ? nullptr : under(HashedKey(part));
}

String OVStringCache::localizedStringForKey(const String& key, const String& language) {
  if (language.isAbsent()) {
    return {};
  }
  const OVLocaleDictionary available = availableLanguages();
  const String cleaned = OVStringCacheUtilities::cleanedString(language);
  const OVLocale* record = recordUnder(HashedKey(cleaned.view()), available);
  const auto bundle = record == nullptr ? nullptr : record->bundle();
  return bundle == nullptr ? String() : bundle->localizedStringForKey(key);
}

void OVStringCache::updateStrings(const StringsPayload& strings, const String& namespaceName,
                                  const String& bundleName, const UpdateReport& report) {
  std::string tablePath(formatArgument(bundleName));
  tablePath.append(1, '.').append(formatArgument(namespaceName)).append(".zantorData");
  const RefreshAtExit refreshAtExit{*this};
  std::optional<CacheUpdate> update;
  for (const auto& [language, payload] : strings.entries()) {
    const StringsPayload* table = payload.valueForKeyPath(tablePath);
    StringsUpdate result{language, StringsUpdate::Result::skipped, {}, "no texts in the payload"_s};
    if (table != nullptr && holdsTexts(*table)) {
      if (!update) {
        update.emplace(*Platform::current().files, cacheDirectoryURL());
      }
      result = writeTable(*update, language, *table);
    }
    if (report) {
      report(result);
    }
  }
}

void OVStringCache::refreshCache() noexcept {
  cachedLanguagesAreStale_ = true;
  availableLanguagesAreStale_ = true;
}

void OVStringCache::clearCache() {
  // First, so that the catalogue names no folder that is gone if removing them throws.
  refreshCache();
  OVStringCacheUtilities::clearFilesFromDirectory(OVStringCacheUtilities::cacheDirectoryURL());
  setCachedLanguages({});
  setAvailableLanguages({});
}

}  // namespace orvanta
