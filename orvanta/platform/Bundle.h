#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/strings/StringTable.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>
#include <orvanta/text/TextHash.h>
#include <orvanta/text/URL.h>

namespace orvanta::platform {

/// The one rule of string look-up: `text` when it was found, an empty text included; else `value`
/// when it is not empty; else `key`, as the handle that was passed in.
[[nodiscard]] inline String lookUpResult(const String& text, const String& key,
                                         const String& value) noexcept {
  return text.isPresent() ? text : value.empty() ? key : value;
}

/// A folder of resources: the application's main bundle, or one language's ".lproj" folder.
///
/// A bundle is a shared object with identity, owned by its registry for the life of the process.
/// It is used from one thread at a time, normally the main thread. A look-up that has to read a
/// table may throw `std::bad_alloc`; the next one tries again.
class ORVANTA_EXPORT Bundle {
 public:
  virtual ~Bundle();
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

  /// The folder's absolute path, without a trailing "/".
  [[nodiscard]] virtual String bundlePath() const = 0;

  /// The names, without ".lproj", of the language folders in the bundle; absent when they cannot be
  /// listed.
  [[nodiscard]] virtual StringList localizations() const = 0;

  /// Those localizations that suit the device's languages, best first; possibly none.
  [[nodiscard]] virtual StringList preferredLocalizations() const = 0;

  /// The path of the resource `name` with the extension `type`; absent when there is none.
  [[nodiscard]] virtual String pathForResource(const String& name, const String& type) const = 0;

  /// What `lookUpResult` makes of the text under `key` in the table; the table "Localizable" when
  /// `table` is absent or empty. An absent key is found nowhere.
  [[nodiscard]] String localizedStringForKey(const String& key, const String& value = {},
                                             const String& table = {}) const;

  /// The text found under `key`, absent when the table has no such entry; the table "Localizable"
  /// when `table` is absent or empty. Answers from the table in memory until
  /// `BundleRegistry::refreshTables`, whatever happens to its file.
  [[nodiscard]] virtual String textForKey(const HashedKey& key, const String& table) const = 0;

  /// The texts under several keys of the table "Localizable" as its file was when the bundle was
  /// last opened: what a new record of the language is built from. One result for each key. A
  /// bundle may find out that none of them is there without reading the table.
  [[nodiscard]] virtual std::vector<String> textsForKeys(std::span<const HashedKey> keys) const;

  /// Gives what `textsForKeys` gives, of the file as it is when this is called. Callable on any
  /// thread, also after the bundle's life; the texts of the keys must be static. May throw
  /// `std::bad_alloc`. Must not ask the record that it is read for, which holds a lock meanwhile.
  using TextsReader = std::function<std::vector<String>(std::span<const HashedKey>)>;
  /// What reads the texts of the table "Localizable" later. Empty where they have to be asked for
  /// now: the bundle holds the table in memory, or keeps its texts elsewhere.
  [[nodiscard]] virtual TextsReader laterTexts() const;

  /// The table "Localizable" once it is in memory: asking it gives what `textForKey` gives, without
  /// a virtual call. Null before, and for a bundle that keeps its texts elsewhere.
  [[nodiscard]] const strings::StringTable* loadedDefaultTable() const noexcept
      ORVANTA_LIFETIME_BOUND {
    return defaultTable_.get();
  }
  /// That table, read now if it is not in memory yet, to be kept, and asked on any thread. Null for
  /// a bundle that keeps its texts elsewhere.
  [[nodiscard]] std::shared_ptr<const strings::StringTable> shareDefaultTable() const;

 protected:
  Bundle() = default;

  /// Where an implementation keeps that table. Look-ups fill it in, hence also of a const bundle.
  [[nodiscard]] std::shared_ptr<const strings::StringTable>& defaultTable() const noexcept {
    return defaultTable_;
  }

 private:
  mutable std::shared_ptr<const strings::StringTable> defaultTable_;
};

/// Opens bundles and keeps them: one object for each path, never freed. Used, with its bundles,
/// from one thread at a time.
class ORVANTA_EXPORT BundleRegistry {
 public:
  virtual ~BundleRegistry();
  BundleRegistry(const BundleRegistry&) = delete;
  BundleRegistry& operator=(const BundleRegistry&) = delete;

  /// The application's own bundle; always present, also when its folder holds nothing.
  [[nodiscard]] virtual std::shared_ptr<Bundle> mainBundle() const = 0;

  /// The folder of the library's own resources, which stands apart from the application's; absent
  /// when the library was installed without one.
  [[nodiscard]] virtual std::shared_ptr<Bundle> bundleForLibrary() = 0;

  /// The bundle of a folder; absent when there is no folder, or no longer one. Opening one again
  /// gives the same object, and leaves its tables in memory as they are.
  [[nodiscard]] virtual std::shared_ptr<Bundle> bundleWithPath(const String& path) = 0;
  /// The bundle at a URL's path; absent for a URL without one.
  [[nodiscard]] std::shared_ptr<Bundle> bundleWithURL(const URL& url) {
    return bundleWithPath(url.path());
  }

  /// To be called when the language changes. From then on look-ups answer from the files as they
  /// were when their bundles were last opened. Tables of bundles that were not opened since the
  /// call before are dropped if their files have changed or gone. Does nothing if no bundle was
  /// opened since then.
  virtual void refreshTables() = 0;

 protected:
  BundleRegistry() = default;
};

}  // namespace orvanta::platform
