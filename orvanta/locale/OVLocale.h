#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/platform/Bundle.h>
#include <orvanta/text/Dictionary.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta {

/// The keys of the three configuration entries that a language's table may carry beside its
/// ordinary strings. "ID" in the constant's name and "Id" in its value are intended: existing
/// tables contain "Id".
inline constexpr std::string_view OVOrvantaLanguageAppleIDKey =
    "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageAppleIdKey";
inline constexpr std::string_view OVOrvantaLanguageEquivalentsKey =
    "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageEquivalentsKey";
inline constexpr std::string_view OVOrvantaLanguageVersionKey =
    "CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageVersionKey";

/// One language that the application can show.
///
/// A record is a shared object with identity: it is never copied, and its hash is its address.
/// Built and changed on the thread that uses the catalogue. Several threads may read a record at
/// the same time once it is built, while none changes it.
///
/// The entries of a shipped table are read lazily, by the first operation that needs one of them,
/// from the file as it is at that time. So an application starts without reading all its tables.
/// Operations that read the table may throw `std::bad_alloc`; they then have no effect, and the
/// next one reads it again.
class ORVANTA_EXPORT OVLocale {
 public:
  /// A record of exactly these values; absent ones are kept as absent.
  [[nodiscard]] static std::shared_ptr<OVLocale> initWithOrvantaName(
      String orvantaName, String appleName, String version,
      std::shared_ptr<platform::Bundle> bundle, StringList locales);

  /// Reads the record from the configuration entries of a language's table. Absent when `bundle`
  /// is absent or its path gives no name.
  [[nodiscard]] static std::shared_ptr<OVLocale> initWithBundle(
      const std::shared_ptr<platform::Bundle>& bundle);

  /// The same, but reads the table lazily: with the first access to `appleLocaleName`, `version` or
  /// `fallbackLocales`. Reads it at once for a bundle without a `laterTexts` reader.
  [[nodiscard]] static std::shared_ptr<OVLocale> initWithUnreadBundle(
      const std::shared_ptr<platform::Bundle>& bundle);

  OVLocale(const OVLocale&) = delete;
  OVLocale& operator=(const OVLocale&) = delete;
  virtual ~OVLocale();

  /// Whether the application's service offers the language. False until the application sets it;
  /// the library does not read it.
  [[nodiscard]] bool availableForDownload() const noexcept { return availableForDownload_; }
  /// Replaces it.
  void setAvailableForDownload(bool available) noexcept { availableForDownload_ = available; }

  /// The application's own code: the folder's name without its extension ("fr-CA" for
  /// ".../fr-CA.lproj").
  [[nodiscard]] const String& orvantaLocaleName() const noexcept ORVANTA_LIFETIME_BOUND {
    return orvantaLocaleName_;
  }
  /// Replaces it; the catalogue keeps the record where it is.
  void setOrvantaLocaleName(String name) noexcept { orvantaLocaleName_ = std::move(name); }

  /// The platform's identifier, under which the catalogue keeps a downloaded language. When the
  /// table names none, the same String object (see `isSameObject`) as the folder's name.
  [[nodiscard]] const String& appleLocaleName() const ORVANTA_LIFETIME_BOUND {
    makeRead();
    return appleLocaleName_;
  }
  /// Replaces it; the catalogue keeps the record where it is.
  void setAppleLocaleName(String name) {
    makeRead();
    appleLocaleName_ = std::move(name);
  }

  /// The version of the table, as text. The text of `OVOrvantaLanguageVersionKey` itself when the
  /// table names none.
  [[nodiscard]] const String& version() const ORVANTA_LIFETIME_BOUND {
    makeRead();
    return version_;
  }

  /// Where the language's strings are.
  [[nodiscard]] const std::shared_ptr<platform::Bundle>& bundle() const noexcept
      ORVANTA_LIFETIME_BOUND {
    return bundle_;
  }
  /// Replaces it.
  void setBundle(std::shared_ptr<platform::Bundle> bundle) noexcept { bundle_ = std::move(bundle); }

  /// The identifiers that count as this same language, in the order written and untrimmed; absent
  /// when the table names none. For the application: the matching does not read it.
  [[nodiscard]] const StringList& fallbackLocales() const ORVANTA_LIFETIME_BOUND {
    makeRead();
    return fallbackLocales_;
  }
  /// Replaces them.
  void setFallbackLocales(StringList locales) {
    makeRead();
    fallbackLocales_ = std::move(locales);
  }

  /// Whether `other` is of this record's class or of a subclass, and both hold the very same
  /// `appleLocaleName` object. Equal characters in two objects are not enough; two absent names
  /// are. False for a null `other`.
  [[nodiscard]] bool isEqual(const OVLocale* other) const;

  /// The record's address. Two records that are equal still have different hashes: in a hashed
  /// container a record is found through itself alone.
  [[nodiscard]] std::size_t hash() const noexcept;

 protected:
  /// Takes the values as they are.
  OVLocale(String orvantaName, String appleName, String version,
           std::shared_ptr<platform::Bundle> bundle, StringList locales) noexcept;

 private:
  struct ORVANTA_HIDDEN Unread;

  void makeRead() const {
    if (isUnread_.load(std::memory_order_acquire)) [[unlikely]] {
      readTable();
    }
  }
  void readTable() const;
  // A record with the name and the bundle only. Null when the bundle's path gives no name.
  [[nodiscard]] ORVANTA_HIDDEN static std::shared_ptr<OVLocale> recordOf(
      const std::shared_ptr<platform::Bundle>& bundle);
  // Sets the values from the texts of the three configuration keys.
  ORVANTA_HIDDEN void takeOver(const std::vector<String>& texts) const;

  bool availableForDownload_ = false;
  // While true, the values from the table are accessed only under the mutex of `unread_`.
  mutable std::atomic<bool> isUnread_{false};
  std::unique_ptr<Unread> unread_;
  String orvantaLocaleName_;
  mutable String appleLocaleName_;
  mutable String version_;
  std::shared_ptr<platform::Bundle> bundle_;
  mutable StringList fallbackLocales_;
};

/// Languages under their identifiers.
using OVLocaleDictionary = Dictionary<std::shared_ptr<OVLocale>>;

}  // namespace orvanta
