#include <string>
#include <utility>
#include <vector>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/ReplacingWriter.h>
#include <orvanta/cache/TableWriter.h>
#include <orvanta/locale/LanguagePart.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/strings/writer/StringsFileText.h>

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

// A dictionary that an application has set may hold a key without a record.
const OVLocale* localeUnder(const HashedKey& key, const OVLocaleDictionary& languages) {
  const auto* locale = languages.find(key);
  return locale == nullptr ? nullptr : locale->get();
}

std::string formatted(const String& text) {
  return text.isAbsent() ? "(null)" : text.str();
}

std::shared_ptr<Bundle> bundleUnder(std::string_view key, const OVLocaleDictionary& languages) {
  const OVLocale* locale = localeUnder(HashedKey(key), languages);
  return locale == nullptr ? nullptr : locale->bundle();
}

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
  OVLocaleDictionary::Map locales;
  locales.reserve(names.size());
  for (const String& name : names) {
    const String folder = mainBundle->pathForResource(name, "lproj"_s);
    if (auto locale = OVLocale::initWithBundle(bundles.bundleWithPath(folder))) {
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
  if (cachedLanguages_.isAbsent()) {
    const Platform& platform = Platform::current();
    OVLocaleDictionary::Map locales;
    platform.files->enumerateDirectoryAtURL(
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
    cachedLanguages_ = OVLocaleDictionary(std::move(locales));
  }
  return cachedLanguages_;
}

void OVStringCache::setCachedLanguages(OVLocaleDictionary languages) {
  cachedLanguages_ = std::move(languages);
}

OVLocaleDictionary OVStringCache::availableLanguages() {
  return languages();
}

const OVLocaleDictionary& OVStringCache::languages() {
  if (availableLanguages_.isAbsent()) {
    const OVLocaleDictionary shipped = mainBundleLocales();
    OVLocaleDictionary::Map locales = shipped.entries();
    for (const auto& [key, locale] : cachedLanguages()) {
      locales.insert_or_assign(key, locale);
    }
    availableLanguages_ = OVLocaleDictionary(std::move(locales));
  }
  return availableLanguages_;
}

void OVStringCache::setAvailableLanguages(OVLocaleDictionary languages) {
  availableLanguages_ = std::move(languages);
}

StringList OVStringCache::availableLanguageCodes() {
  return codesOf(availableLanguages());
}

StringList OVStringCache::cachedLanguageCodes() {
  return codesOf(cachedLanguages());
}

// The codes can be set because they are properties, but a read always makes them afresh.
void OVStringCache::setAvailableLanguageCodes(const StringList& /*codes*/) noexcept {}
void OVStringCache::setCachedLanguageCodes(const StringList& /*codes*/) noexcept {}

std::int32_t OVStringCache::indexOfFirstAvailableCachedLanguage(const StringList& languages) {
  using OVStringCacheUtilities::cleanedString;
  const OVLocaleDictionary available = availableLanguages();
  std::int32_t position = 0;
  for (const String& language : languages) {
    if (localeUnder(HashedKey(cleanedString(language).view()), available) != nullptr ||
        localeUnder(HashedKey(cleanedString(languagePart(language)).view()), available) !=
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

const std::shared_ptr<Bundle>* OVStringCache::findBundle(const HashedKey& language) {
  const auto under = [&](const HashedKey& key) -> const std::shared_ptr<Bundle>* {
    const OVLocale* locale = localeUnder(key, languages());
    return locale == nullptr || locale->bundle() == nullptr ? nullptr : &locale->bundle();
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
  const auto bundle =
      bundleUnder(OVStringCacheUtilities::cleanedString(language).view(), availableLanguages());
  return bundle == nullptr ? String() : bundle->localizedStringForKey(key);
}

void OVStringCache::updateStrings(const StringsPayload& strings, const String& namespaceName,
                                  const String& bundleName, const UpdateReport& report) {
  sweepAbandonedFiles(*Platform::current().files, cacheDirectoryURL());
  const std::string tablePath =
      formatted(bundleName) + '.' + formatted(namespaceName) + ".zantorData";
  for (const auto& [language, payload] : strings.entries()) {
    const StringsUpdate update = updateLanguage(language, payload.valueForKeyPath(tablePath));
    if (report) {
      report(update);
    }
  }
  refreshCache();
}

StringsUpdate OVStringCache::updateLanguage(const String& language, const StringsPayload* table) {
  if (table == nullptr || table->entries().empty()) {
    return {language, StringsUpdate::Result::skipped, {}, "no strings for it in the payload"_s};
  }
  const URL folder = cacheDirectoryURL();
  const URL file = OVStringCacheUtilities::stringsFileURLForLanguage(folder, language);
  const auto error = writeTableInside(
      folder,
      [&](strings::Utf16Writer& writer) {
        strings::forEachPieceOfStringsFile(*table,
                                           [&](std::string_view piece) { writer.append(piece); });
      },
      file);
  if (!error) {
    return {language, StringsUpdate::Result::written, file, {}};
  }
  return {language, StringsUpdate::Result::failed, file,
          folder.isAbsent() ? "there is no caches directory"_s : error->localizedDescription};
}

void OVStringCache::refreshCache() {
  setCachedLanguages({});
  setAvailableLanguages({});
}

void OVStringCache::clearCache() {
  OVStringCacheUtilities::clearFilesFromDirectory(OVStringCacheUtilities::cacheDirectoryURL());
  refreshCache();
}

}  // namespace orvanta
