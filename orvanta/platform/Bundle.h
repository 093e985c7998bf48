#pragma once

#include <memory>
#include <span>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/strings/StringTable.h>
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
/// It is used from one thread at a time, normally the main thread.
class ORVANTA_EXPORT Bundle {
 public:
  virtual ~Bundle();
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

  /// The folder's absolute path, without a trailing "/".
  [[nodiscard]] virtual String bundlePath() const = 0;

  /// The names, without ".lproj", of the language folders in the bundle.
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
  /// when `table` is absent or empty. What `localizedStringForKey` is made of, for callers who ask
  /// several tables for one key.
  [[nodiscard]] virtual String textForKey(const HashedKey& key, const String& table) const = 0;

  /// The table "Localizable" where the bundle has it in memory, which then answers as `textForKey`
  /// would, without a virtual call; null otherwise.
  [[nodiscard]] const strings::StringTable* loadedDefaultTable() const noexcept {
    return loadedDefaultTable_;
  }

  /// The same for several keys of the table "Localizable" at once, one result for each. Worth its
  /// own operation because a bundle may answer that none of them is there without building a table.
  [[nodiscard]] virtual std::vector<String> textsForKeys(std::span<const HashedKey> keys) const;

 protected:
  Bundle() = default;

  /// `table` must stay until something else is set.
  void setLoadedDefaultTable(const strings::StringTable* table) const noexcept {
    loadedDefaultTable_ = table;
  }

 private:
  // What the bundle found out already; part of no answer.
  mutable const strings::StringTable* loadedDefaultTable_ = nullptr;
};

/// Opens bundles and keeps them: one object for each path, never freed.
class ORVANTA_EXPORT BundleRegistry {
 public:
  virtual ~BundleRegistry();
  BundleRegistry(const BundleRegistry&) = delete;
  BundleRegistry& operator=(const BundleRegistry&) = delete;

  /// The application's own bundle; always present, also when its folder holds nothing.
  [[nodiscard]] virtual std::shared_ptr<Bundle> mainBundle() = 0;

  /// The folder of the library's own resources, which stands apart from the application's; absent
  /// when the library was installed without one.
  [[nodiscard]] virtual std::shared_ptr<Bundle> bundleForLibrary() = 0;

  /// The bundle of a folder, absent when there is no folder there (any more). Opening one again
  /// gives the same object; it reads its tables afresh if their files have changed meanwhile.
  [[nodiscard]] virtual std::shared_ptr<Bundle> bundleWithPath(const String& path) = 0;
  [[nodiscard]] std::shared_ptr<Bundle> bundleWithURL(const URL& url) {
    return bundleWithPath(url.path());
  }

 protected:
  BundleRegistry() = default;
};

}  // namespace orvanta::platform
