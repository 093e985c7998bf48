// The cached languages whose tables are older than those that the application ships.
#include <algorithm>
#include <string_view>
#include <vector>

#include <orvanta/cache/CachePath.h>
#include <orvanta/cache/LoggedRemoval.h>
#include <orvanta/cache/OVStringCache.h>

namespace orvanta {

namespace {

// Empty where the table names none; the record then holds the key of the entry.
std::string_view versionOf(const OVLocale& locale) {
  const std::string_view version = locale.version().view();
  return version == OVOrvantaLanguageVersionKey ? std::string_view() : version;
}

// The digits at the front of the next piece between dots, without zeros in front.
std::string_view takeNumber(std::string_view& version) {
  std::string_view piece = version.substr(0, version.find('.'));
  version.remove_prefix(std::min(piece.size() + 1, version.size()));
  piece = piece.substr(0, piece.find_first_not_of("0123456789"));
  piece.remove_prefix(std::min(piece.find_first_not_of('0'), piece.size()));
  return piece;
}

// "1.9" is lower than "1.10", and no version lower than any; "1" and "1.0" are the same.
bool isLower(std::string_view a, std::string_view b) {
  if (a.empty() || b.empty()) {
    return a.empty() && !b.empty();
  }
  while (!a.empty() || !b.empty()) {
    const std::string_view first = takeNumber(a);
    const std::string_view second = takeNumber(b);
    if (first != second) {
      return first.size() != second.size() ? first.size() < second.size() : first < second;
    }
  }
  return false;
}

}  // namespace

StringList OVStringCache::discardCachedLanguagesOlderThanShipped() {
  const OVLocaleDictionary shipped = mainBundleLocales();
  const OVLocaleDictionary cached = cachedLanguages();
  std::vector<String> discarded;
  for (const auto& [language, locale] : cached) {
    const auto* other = shipped.find(language);
    if (locale == nullptr || locale->bundle() == nullptr || other == nullptr ||
        !isLower(versionOf(*locale), versionOf(**other))) {
      continue;
    }
    // A record that the application has put in may lie elsewhere.
    const URL folder = URL::fileURLWithPath(locale->bundle()->bundlePath(), true);
    const CachePath table = cachePathOf(
        folder.URLByAppendingPathComponent("Localizable.strings", false), cacheDirectoryURL());
    if (table.status.ok() && removeItemLoggingFailure(folder)) {
      discarded.push_back(language);
    }
  }
  if (!discarded.empty()) {
    refreshCache();
  }
  return StringList(discarded);
}

}  // namespace orvanta
