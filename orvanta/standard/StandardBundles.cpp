#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <orvanta/standard/BundlePaths.h>
#include <orvanta/standard/LaterTexts.h>
#include <orvanta/standard/LocalizationRanking.h>
#include <orvanta/standard/StandardBundles.h>
#include <orvanta/standard/TableFile.h>
#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/text/PathString.h>

namespace orvanta::standard {

namespace {

constexpr std::string_view kLanguageFolderExtension = ".lproj";
constexpr String kDefaultTable = "Localizable";

// True for a link to a folder, too: a "." behind it asks what it leads to. False for a folder that
// may not be entered: none of its files can be read.
bool isFolder(platform::FileManager& files, const String& path) {
  return files.itemKindAtPath(path::stringByAppendingPathComponent(path, ".")) ==
         platform::ItemKind::directory;
}

// What all bundles of a registry share.
struct Services {
  std::shared_ptr<platform::FileManager> files;
  std::shared_ptr<platform::LocaleData> locales;
  std::shared_ptr<strings::PrefixProbe> probe;
  // Owned by those who will read.
  std::shared_ptr<std::weak_ptr<LaterTexts>> laterTexts =
      std::make_shared<std::weak_ptr<LaterTexts>>();

  [[nodiscard]] std::shared_ptr<LaterTexts> later() const {
    std::shared_ptr<LaterTexts> texts = laterTexts->lock();
    if (texts == nullptr) {
      *laterTexts = texts = std::make_shared<LaterTexts>(files);
    }
    return texts;
  }
};

class StandardBundle final : public platform::Bundle {
 public:
  enum class Role { main, plain };

  StandardBundle(const Services& services, String path, Role role)
      : services_(services),
        path_(std::move(path)),
        role_(role),
        defaultFile_(services.files, services.probe) {}

  String bundlePath() const override { return path_; }

  StringList localizations() const override {
    const auto contents =
        services_.files->contentsOfDirectoryAtURL(URL::fileURLWithPath(path_, true));
    if (!contents.status.ok() && !contents.status.is(std::errc::no_such_file_or_directory)) {
      return {};
    }
    std::vector<String> names;
    for (const URL& entry : contents.entries) {
      const String path = entry.path();
      const String folder = path::lastPathComponent(path);
      std::string_view name = folder.view();
      if (name.ends_with(kLanguageFolderExtension) && !name.starts_with('.') &&
          isFolder(*services_.files, path)) {
        name.remove_suffix(kLanguageFolderExtension.size());
        names.emplace_back(name);
      }
    }
    std::sort(names.begin(), names.end(),
              [](const String& a, const String& b) { return a.view() < b.view(); });
    return StringList(names);
  }

  StringList preferredLocalizations() const override {
    return rankLocalizations(localizations(), services_.locales->preferredLanguages());
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
    const bool mayBeFolder = type == kLanguageFolderExtension.substr(1);
    if (isResource(path, mayBeFolder)) {
      return path;
    }
    return role_ == Role::main ? pathInPreferredLocalization(resource, mayBeFolder) : String();
  }

  String textForKey(const HashedKey& key, const String& table) const override {
    if (table.empty() || table == kDefaultTable) {
      return loadedTable(defaultFile_, defaultTable(), kDefaultTable).textForKey(key);
    }
    const auto other = otherTables_.try_emplace(table, services_).first;
    return loadedTable(other->second.file, other->second.table, table).textForKey(key);
  }

  std::vector<String> textsForKeys(std::span<const HashedKey> keys) const override {
    TableFile& file = changed_ ? changed_->file : defaultFile_;
    std::shared_ptr<const strings::StringTable>& table =
        changed_ ? changed_->table : defaultTable();
    const std::string_view prefix = strings::prefixToProbeFor(keys);
    const std::shared_ptr<const strings::StringTable> entries =
        table != nullptr || prefix.empty()
            ? nullptr
            : file.entriesWithPrefix(prefix, pathOfTable(kDefaultTable));
    const strings::StringTable& answering =
        entries == nullptr ? loadedTable(file, table, kDefaultTable) : *entries;
    return textsIn(answering, keys);
  }

  TextsReader laterTexts() const override {
    if (role_ == Role::main || defaultTable() != nullptr || changed_) {
      return {};
    }
    return [later = services_.later(),
            path = path::stringByAppendingPathComponent(path_, "Localizable.strings")](
               std::span<const HashedKey> keys) { return later->read(path, keys); };
  }

  // To be called when the bundle is opened again. A table in memory stays as it is.
  void openAgain() {
    TableFile& file = changed_ ? changed_->file : defaultFile_;
    if (!hasChanged(file, kDefaultTable)) {
      return;
    }
    if (defaultTable() == nullptr) {
      file.reset();
    } else {
      changed_.emplace(services_);
    }
  }

  // Takes over what opening the bundle again has found.
  void takeOverChanges() {
    if (changed_) {
      defaultFile_ = std::move(changed_->file);
      defaultTable() = std::move(changed_->table);
      changed_.reset();
    }
    dropChangedOtherTables();
  }

  // Drops every table whose file has changed or gone.
  void dropChangedTables() {
    dropIfChanged(defaultFile_, defaultTable(), kDefaultTable);
    dropChangedOtherTables();
  }

 private:
  // A table and the state of its file. The table is null until a look-up has read it.
  struct Table {
    explicit Table(const Services& services) : file(services.files, services.probe) {}
    TableFile file;
    std::shared_ptr<const strings::StringTable> table;
  };

  bool hasChanged(TableFile& file, const String& name) const {
    return file.wasRead() && file.hasChanged(pathOfTable(name));
  }

  void dropIfChanged(TableFile& file, std::shared_ptr<const strings::StringTable>& table,
                     const String& name) const {
    if (hasChanged(file, name)) {
      file.reset();
      table.reset();
    }
  }

  void dropChangedOtherTables() {
    for (auto& [name, other] : otherTables_) {
      dropIfChanged(other.file, other.table, name);
    }
  }

  // A resource other than a language's folder is a regular file.
  bool isResource(const String& path, bool mayBeFolder) const {
    return mayBeFolder ? services_.files->fileExistsAtPath(path)
                       : services_.files->stampOfFileAtPath(path).has_value();
  }

  String pathOfTable(const String& name) const { return pathForResource(name, "strings"); }

  String pathInPreferredLocalization(std::string_view resource, bool mayBeFolder) const {
    const StringList preferred = preferredLocalizations();
    if (preferred.empty()) {
      return {};
    }
    const String folder = path::stringByAppendingPathComponent(
        path_, preferred.front().str().append(kLanguageFolderExtension));
    String path = path::stringByAppendingPathComponent(folder, resource);
    return isResource(path, mayBeFolder) ? path : String();
  }

  const strings::StringTable& loadedTable(TableFile& file,
                                          std::shared_ptr<const strings::StringTable>& table,
                                          const String& name) const {
    if (table == nullptr) {
      table = file.read(pathOfTable(name));
    }
    return *table;
  }

  const Services services_;
  const String path_;
  const Role role_;
  // Memoized by look-ups. The default table itself stands in the base class.
  mutable TableFile defaultFile_;
  // What opening the bundle again has found of the default table, until the language changes.
  mutable std::optional<Table> changed_;
  mutable std::unordered_map<String, Table, TextHash, TextEqual> otherTables_;
};

class StandardBundleRegistry final : public platform::BundleRegistry {
 public:
  StandardBundleRegistry(std::shared_ptr<platform::FileManager> files,
                         std::shared_ptr<platform::LocaleData> locales,
                         const String& mainBundlePath, String libraryPath)
      : services_{std::move(files), std::move(locales), std::make_shared<strings::PrefixProbe>()},
        libraryPath_(std::move(libraryPath)),
        main_(std::make_shared<StandardBundle>(services_, normalizedBundlePath(mainBundlePath),
                                               StandardBundle::Role::main)) {
    bundles_.emplace(main_->bundlePath(), Opened{main_, 0});
  }

  std::shared_ptr<platform::Bundle> mainBundle() const override { return main_; }

  std::shared_ptr<platform::Bundle> bundleForLibrary() override {
    return bundleWithPath(libraryPath_);
  }

  std::shared_ptr<platform::Bundle> bundleWithPath(const String& path) override {
    const String normalized = normalizedBundlePath(path);
    wasAsked_ = true;
    if (normalized.isAbsent() || !isFolder(*services_.files, normalized)) {
      return nullptr;
    }
    const auto known = bundles_.find(normalized);
    if (known == bundles_.end()) {
      auto bundle =
          std::make_shared<StandardBundle>(services_, normalized, StandardBundle::Role::plain);
      bundles_.emplace(normalized, Opened{bundle, refreshes_});
      return bundle;
    }
    known->second.bundle->openAgain();
    known->second.when = refreshes_;
    return known->second.bundle;
  }

  void refreshTables() override {
    if (!wasAsked_) {
      return;
    }
    for (const auto& [path, opened] : bundles_) {
      if (opened.when == refreshes_) {
        opened.bundle->takeOverChanges();
      } else {
        opened.bundle->dropChangedTables();
      }
    }
    wasAsked_ = false;
    ++refreshes_;
  }

 private:
  struct Opened {
    std::shared_ptr<StandardBundle> bundle;
    std::uint64_t when;  // The number of refreshes before it was last opened.
  };

  const Services services_;
  const String libraryPath_;
  const std::shared_ptr<StandardBundle> main_;
  std::unordered_map<String, Opened, TextHash, TextEqual> bundles_;
  bool wasAsked_ = false;  // For a bundle, since the last refresh.
  std::uint64_t refreshes_ = 1;
};

}  // namespace

std::shared_ptr<platform::BundleRegistry> makeBundleRegistry(
    std::shared_ptr<platform::FileManager> files, std::shared_ptr<platform::LocaleData> locales,
    const String& mainBundlePath, String libraryPath) {
  return std::make_shared<StandardBundleRegistry>(std::move(files), std::move(locales),
                                                  mainBundlePath, std::move(libraryPath));
}

}  // namespace orvanta::standard
