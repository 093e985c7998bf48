#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/locale/OVLocale.h>
#include <orvanta/platform/Bundle.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/TextHash.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// What `indexOfFirstAvailableCachedLanguage` answers when no language is available.
inline constexpr std::intptr_t OVLocaleNotAvailable = 1000;

/// The usual comment of a table entry without one. For applications; the library writes none.
inline constexpr std::string_view defaultComment = "No comment provided by engineer.";

/// The result of an update for one language.
struct StringsUpdate {
  /// What became of the language's table.
  enum class Result {
    written,  ///< The new table is in place.
    skipped,  ///< The payload holds no table, or one without texts; what was cached stays.
    failed,   ///< What was cached stays.
  };

  /// As the payload names it.
  String language;
  /// What became of its table.
  Result result;
  URL file;  ///< Absent when skipped, or when the language's name fits in no URL.
  /// For people. Present when written only if the table may not survive a loss of power, or if the
  /// catalogue passes over it because a part of the language's name begins with ".".
  String reason;
};

/// The catalogue of the languages that the application can use, and the cache of downloaded tables
/// on disk:
///
///     <caches directory>/OrvantaLocalizations/<language>.lproj/Localizable.strings
///
/// A language is cached exactly when its folder holds that file. The catalogue is read from disk
/// when it is first asked for and then kept until a reset (`refreshCache`, `clearCache`,
/// `updateStrings`); nothing watches the disk. When the disk cannot be read then, for want of
/// descriptors or memory, the catalogue before the reset stands in, and the next read tries again.
/// Used from one thread at a time, normally the main thread; no locks are taken.
class ORVANTA_EXPORT OVStringCache {
 public:
  OVStringCache();
  OVStringCache(const OVStringCache&) = delete;
  OVStringCache& operator=(const OVStringCache&) = delete;
  ~OVStringCache();

  /// The cache folder, located and made at the first read; absent when the platform has no caches
  /// directory.
  [[nodiscard]] const URL& cacheDirectoryURL() ORVANTA_LIFETIME_BOUND;
  /// Used from now on; an absent one makes the next read locate the folder again.
  void setCacheDirectoryURL(URL url);

  /// The languages shipped in the main bundle, under their folders' names. Built at every call.
  /// Absent when the bundle cannot be listed.
  [[nodiscard]] OVLocaleDictionary mainBundleLocales() const;

  /// Whether the bundle has a resource "Localizable" of type "strings".
  [[nodiscard]] bool stringsFileExistsForBundle(const platform::Bundle& bundle) const;

  /// The downloaded languages, under their records' `appleLocaleName`. A dictionary that was set
  /// is given back unchanged; setting an absent one makes the next read build it again.
  [[nodiscard]] OVLocaleDictionary cachedLanguages();
  /// See `cachedLanguages`.
  void setCachedLanguages(OVLocaleDictionary languages);

  /// The shipped and the downloaded languages; under a key that both have, the downloaded one. Set
  /// and reset as `cachedLanguages` is.
  [[nodiscard]] OVLocaleDictionary availableLanguages();
  /// See `availableLanguages`.
  void setAvailableLanguages(OVLocaleDictionary languages);

  /// The `orvantaLocaleName` of every available language, in no particular order; built at every
  /// call. A list that is set is ignored.
  [[nodiscard]] StringList availableLanguageCodes();
  /// Does nothing; see `availableLanguageCodes`.
  void setAvailableLanguageCodes(const StringList& codes) noexcept;

  /// The same for the downloaded languages.
  [[nodiscard]] StringList cachedLanguageCodes();
  /// Does nothing; see `cachedLanguageCodes`.
  void setCachedLanguageCodes(const StringList& codes) noexcept;

  /// The position of the first identifier whose cleaned form, or whose cleaned language part, is a
  /// key of `availableLanguages`; `OVLocaleNotAvailable` when there is none. Keys are matched
  /// exactly while identifiers are lower-cased, so a key with capitals is never found.
  [[nodiscard]] std::int32_t indexOfFirstAvailableCachedLanguage(const StringList& languages);

  /// The bundle kept under exactly this identifier, else under its language part; else absent.
  [[nodiscard]] std::shared_ptr<platform::Bundle> bundleForLanguage(const String& language);
  /// Whether there is one.
  [[nodiscard]] bool hasBundleForLanguage(const HashedKey& language);

  /// The string in the table of the cleaned identifier; absent when there is no such language. The
  /// language part is not tried.
  [[nodiscard]] String localizedStringForKey(const String& key, const String& language);

  /// Told of each language's result, on the thread that updates.
  using UpdateReport = std::function<void(const StringsUpdate&)>;
  /// Writes downloaded tables into the cache and forgets the catalogue, so that the next change of
  /// language, also to the same one, reads the new files; until then look-ups answer from the
  /// tables in memory.
  ///
  /// `strings` is a dictionary from language to payload; a payload is a dictionary in which the
  /// path "bundleName.namespaceName.zantorData", split at every ".", leads to the table, a
  /// dictionary from key to text. Each table replaces the one that was cached. A language without
  /// a table, or whose table holds no texts, is skipped. A write that fails is logged, leaves what
  /// was cached, and the update goes on. The disk is touched only for a language with a table.
  ///
  /// `report`, if given, is called for each language once it is dealt with. An exception of it ends
  /// the update there: what was written stays, the catalogue is forgotten as ever, and the
  /// exception reaches the caller.
  ///
  /// Keys and values are source text of the strings format: they are written as they are, and
  /// escapes in them are resolved when the file is read.
  ///
  /// Writing syncs every table to disk. A worker thread may do it through an `OVStringCache` of its
  /// own that writes to the same folder; after that the main thread calls `refreshCache` of its
  /// cache and changes the language.
  void updateStrings(const StringsPayload& strings, const String& namespaceName,
                     const String& bundleName, const UpdateReport& report = {});

  /// Forgets the catalogue, so that the next read sees what is on disk then.
  void refreshCache() noexcept;

  /// Removes the downloaded languages whose version is lower than that of the language shipped
  /// under the same key, and forgets the catalogue if there were any: an application that was
  /// updated calls it at its start. Returns their keys. Versions are compared number by number
  /// between the dots; a table without a version counts as the lowest. A folder that cannot be
  /// removed is logged and skipped. Look-ups answer from the tables in memory until the next change
  /// of language.
  StringList discardCachedLanguagesOlderThanShipped();

  /// Empties the platform's cache folder, which is made if it is missing, and forgets the
  /// catalogue.
  void clearCache();

 private:
  // `availableLanguages` itself, valid until the catalogue changes.
  ORVANTA_HIDDEN const OVLocaleDictionary& languages();
  ORVANTA_HIDDEN void listCachedLanguages();
  // Null when there is none; valid until the catalogue changes.
  ORVANTA_HIDDEN const std::shared_ptr<platform::Bundle>* findBundle(const HashedKey& language);

  URL cacheDirectoryURL_;
  OVLocaleDictionary cachedLanguages_;
  OVLocaleDictionary availableLanguages_;
  // A stale dictionary is built again by the next read, and stays if that fails.
  bool cachedLanguagesAreStale_ = false;
  bool availableLanguagesAreStale_ = false;
};

}  // namespace orvanta
