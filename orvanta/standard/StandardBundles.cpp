#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <orvanta/standard/BundlePaths.h>
#include <orvanta/standard/LocalizationRanking.h>
#include <orvanta/standard/StandardBundles.h>
#include <orvanta/standard/TableFile.h>
#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/text/PathString.h>

namespace orvanta::standard {

namespace {

constexpr std::string_view kLanguageFolderExtension = ".lproj";
const String kDefaultTable = "Localizable"_s;

// True for a link to a folder, too: a "." behind it asks what it leads to.
bool isFolder(platform::FileManager& files, const String& path) {
  return files.itemKindAtPath(path::stringByAppendingPathComponent(path, ".")) ==
         platform::ItemKind::directory;
}

// What all bundles of a registry share.
struct Surroundings {
  std::shared_ptr<platform::FileManager> files;
  std::shared_ptr<platform::LocaleData> locales;
  std::shared_ptr<strings::PrefixProbe> probe;
};

class StandardBundle final : public platform::Bundle {
 public:
  enum class Role { main, plain };

  StandardBundle(Surroundings surroundings, String path, Role role)
      : files_(std::move(surroundings.files)),
        locales_(std::move(surroundings.locales)),
        probe_(std::move(surroundings.probe)),
        path_(std::move(path)),
        role_(role),
        defaultTable_(files_, probe_) {}

  String bundlePath() const override { return path_; }

  StringList localizations() const override {
    std::vector<String> names;
    for (const URL& entry : files_->contentsOfDirectoryAtURL(URL::fileURLWithPath(path_, true))) {
      const String path = entry.path();
      const String folder = path::lastPathComponent(path);
      std::string_view name = folder.view();
      if (name.ends_with(kLanguageFolderExtension) && !name.starts_with('.') &&
          isFolder(*files_, path)) {
        name.remove_suffix(kLanguageFolderExtension.size());
        names.emplace_back(name);
      }
    }
    std::sort(names.begin(), names.end(),
              [](const String& a, const String& b) { return a.view() < b.view(); });
    return StringList(names);
  }

  StringList preferredLocalizations() const override {
    return rankLocalizations(localizations(), locales_->preferredLanguages());
  }

  String pathForResource(const String& name, const String& type) const override {
    if (name.empty()) {
      return {};
    }
    std::string resource = name.str();
    if (!type.empty()) {
      resource.append(1, '.').append(type.view());
    }
    if (!staysBelow(resource)) {
      return {};
    }
    String path = path::stringByAppendingPathComponent(path_, resource);
    if (files_->fileExistsAtPath(path)) {
      return path;
    }
    return role_ == Role::main ? pathInPreferredLocalization(resource) : String();
  }

  String textForKey(const HashedKey& key, const String& table) const override {
    return tableNamed(table).textForKey(key);
  }

  std::vector<String> textsForKeys(std::span<const HashedKey> keys) const override {
    return lacksAll(keys) ? std::vector<String>(keys.size()) : platform::Bundle::textsForKeys(keys);
  }

  void openAgain() {
    checkAgain(defaultTable_, kDefaultTable);
    setLoadedDefaultTable(defaultTable_.loaded());
    for (auto& [name, table] : otherTables_) {
      checkAgain(table, name);
    }
  }

 private:
  String pathOfTable(const String& name) const { return pathForResource(name, "strings"); }

  String pathInPreferredLocalization(std::string_view resource) const {
    const StringList preferred = preferredLocalizations();
    if (preferred.empty()) {
      return {};
    }
    const String folder = path::stringByAppendingPathComponent(
        path_, preferred.front().str().append(kLanguageFolderExtension));
    String path = path::stringByAppendingPathComponent(folder, resource);
    return files_->fileExistsAtPath(path) ? path : String();
  }

  // True when the default table need not be read in order to know that it has none of `keys`.
  bool lacksAll(std::span<const HashedKey> keys) const {
    if (defaultTable_.loaded() != nullptr) {
      return false;
    }
    const std::string_view prefix = strings::prefixToProbeFor(keys);
    return !prefix.empty() &&
           (defaultTable_.isKnownToLack(prefix) ||
            defaultTable_.findOutWhetherItLacks(prefix, pathOfTable(kDefaultTable)));
  }

  const strings::StringTable& tableNamed(const String& name) const {
    if (name.empty() || name == kDefaultTable) {
      const strings::StringTable& table = loadedTable(defaultTable_, kDefaultTable);
      setLoadedDefaultTable(&table);
      return table;
    }
    return loadedTable(otherTables_.try_emplace(name, files_, probe_).first->second, name);
  }

  const strings::StringTable& loadedTable(TableFile& table, const String& name) const {
    const strings::StringTable* loaded = table.loaded();
    return loaded != nullptr ? *loaded : table.load(pathOfTable(name));
  }

  void checkAgain(TableFile& table, const String& name) const {
    if (!table.isUntouched()) {
      table.checkAgain(pathOfTable(name));
    }
  }

  std::shared_ptr<platform::FileManager> files_;
  std::shared_ptr<platform::LocaleData> locales_;
  std::shared_ptr<strings::PrefixProbe> probe_;
  String path_;
  Role role_;
  // Filled by look-ups, which change nothing that a caller could see.
  mutable TableFile defaultTable_;
  mutable std::unordered_map<String, TableFile, TextHash, TextEqual> otherTables_;
};

class StandardBundleRegistry final : public platform::BundleRegistry {
 public:
  StandardBundleRegistry(std::shared_ptr<platform::FileManager> files,
                         std::shared_ptr<platform::LocaleData> locales,
                         const String& mainBundlePath, String libraryPath)
      : surroundings_{std::move(files), std::move(locales),
                      std::make_shared<strings::PrefixProbe>()},
        libraryPath_(std::move(libraryPath)) {
    String path = normalizedBundlePath(mainBundlePath);
    main_ = std::make_shared<StandardBundle>(surroundings_, path, StandardBundle::Role::main);
    bundles_.emplace(std::move(path), main_);
  }

  std::shared_ptr<platform::Bundle> mainBundle() override { return main_; }

  std::shared_ptr<platform::Bundle> bundleForLibrary() override {
    return bundleWithPath(libraryPath_);
  }

  std::shared_ptr<platform::Bundle> bundleWithPath(const String& path) override {
    const String normalized = normalizedBundlePath(path);
    if (normalized.isAbsent() || !isFolder(*surroundings_.files, normalized)) {
      return nullptr;
    }
    const auto [entry, isNew] = bundles_.try_emplace(normalized, nullptr);
    if (isNew) {
      entry->second =
          std::make_shared<StandardBundle>(surroundings_, normalized, StandardBundle::Role::plain);
    } else {
      entry->second->openAgain();
    }
    return entry->second;
  }

 private:
  Surroundings surroundings_;
  String libraryPath_;
  std::shared_ptr<StandardBundle> main_;
  std::unordered_map<String, std::shared_ptr<StandardBundle>, TextHash, TextEqual> bundles_;
};

}  // namespace

std::shared_ptr<platform::BundleRegistry> makeBundleRegistry(
    std::shared_ptr<platform::FileManager> files, std::shared_ptr<platform::LocaleData> locales,
    const String& mainBundlePath, String libraryPath) {
  return std::make_shared<StandardBundleRegistry>(std::move(files), std::move(locales),
                                                  mainBundlePath, std::move(libraryPath));
}

}  // namespace orvanta::standard
