#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QResource>
#include <system_error>
#include <utility>

#include <orvanta/qt/Text.h>
#include <orvanta/qt/platform/ResourceFiles.h>

namespace orvanta::qt {

namespace {

using platform::FileStamp;
using platform::Folder;
using platform::ItemKind;
using platform::ReadableFile;

constexpr std::string_view kQtRoot = ":/";
constexpr std::string_view kRoot = "/:";
// No disk has it: where the stamp of a resource cannot be that of a file.
constexpr std::uint64_t kDevice = ~std::uint64_t{0};

Status failure(std::errc error, const String& path) {
  const int code = static_cast<int>(error);
  return {code, path.str() + ": " + std::generic_category().message(code)};
}

// What Qt calls a path of the library; null for one that is no resource's.
QString resourceAt(const String& path) {
  const std::string_view text = path.view();
  if (text != kRoot && !(text.starts_with(kRoot) && text[kRoot.size()] == '/')) {
    return {};
  }
  const QString clean = QDir::cleanPath(toQString(path).mid(1) + u'/');
  return clean == QLatin1String(":") || clean.startsWith(QLatin1String(":/")) ? clean : QString();
}

class ReadableResource final : public ReadableFile {
 public:
  explicit ReadableResource(const QString& path) : file_(path) {}
  [[nodiscard]] bool open() { return file_.open(QIODevice::ReadOnly); }

  std::optional<std::size_t> read(std::span<char> buffer) override {
    const qint64 size = file_.read(buffer.data(), static_cast<qint64>(buffer.size()));
    return size < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(size));
  }

 private:
  QFile file_;
};

class ResourceFiles final : public platform::FileManager {
 public:
  explicit ResourceFiles(std::shared_ptr<FileManager> others) : others_(std::move(others)) {}

  URL cachesDirectoryURL() override { return others_->cachesDirectoryURL(); }

  bool fileExistsAtPath(const String& path) override {
    const QString resource = resourceAt(path);
    return resource.isNull() ? others_->fileExistsAtPath(path) : QFileInfo::exists(resource);
  }

  ItemKind itemKindAtPath(const String& path) override {
    const QString resource = resourceAt(path);
    if (resource.isNull()) {
      return others_->itemKindAtPath(path);
    }
    const QFileInfo info(resource);
    if (!info.exists()) {
      return ItemKind::missing;
    }
    return info.isDir() ? ItemKind::directory : ItemKind::file;
  }

  std::optional<FileStamp> stampOfFileAtPath(const String& path) override {
    const QString resource = resourceAt(path);
    if (resource.isNull()) {
      return others_->stampOfFileAtPath(path);
    }
    const QFileInfo info(resource);
    if (!info.isFile()) {
      return std::nullopt;
    }
    constexpr std::int64_t kNanosecondsInMillisecond = 1'000'000;
    const QDateTime modified = info.lastModified();
    return FileStamp{
        kDevice, reinterpret_cast<std::uintptr_t>(QResource(resource).data()),
        static_cast<std::uint64_t>(info.size()),
        modified.isValid() ? modified.toMSecsSinceEpoch() * kNanosecondsInMillisecond : 0};
  }

  Folder::Opening openFolder(const String& path) override {
    return resourceAt(path).isNull() ? others_->openFolder(path)
                                     : Folder::Opening{nullptr, refusal(path)};
  }

  std::unique_ptr<ReadableFile> openFileForReading(const String& path) override {
    const QString resource = resourceAt(path);
    if (resource.isNull()) {
      return others_->openFileForReading(path);
    }
    auto file = std::make_unique<ReadableResource>(resource);
    return QFileInfo(resource).isFile() && file->open() ? std::move(file) : nullptr;
  }

  Status removeItemAtURL(const URL& url) override {
    const String path = url.path();
    return resourceAt(path).isNull() ? others_->removeItemAtURL(url) : refusal(path);
  }

  Contents contentsOfDirectoryAtURL(const URL& url) override {
    const String path = url.path();
    const QString resource = resourceAt(path);
    if (resource.isNull()) {
      return others_->contentsOfDirectoryAtURL(url);
    }
    if (!QFileInfo(resource).isDir()) {
      return {{}, failure(std::errc::no_such_file_or_directory, path)};
    }
    Contents contents;
    const QFileInfoList entries = QDir(resource).entryInfoList(kEntries);
    for (const QFileInfo& entry : entries) {
      contents.entries.push_back(
          url.URLByAppendingPathComponent(entry.fileName().toStdString(), entry.isDir()));
    }
    return contents;
  }

  Status enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) override {
    if (resourceAt(url.path()).isNull()) {
      return others_->enumerateDirectoryAtURL(url, visit);
    }
    const Contents contents = contentsOfDirectoryAtURL(url);
    for (const URL& entry : contents.entries) {
      const QFileInfo info(resourceAt(entry.path()));
      if (!info.fileName().startsWith(u'.')) {
        visit(entry, info.isDir());
        static_cast<void>(info.isDir() ? enumerateDirectoryAtURL(entry, visit) : Status());
      }
    }
    return contents.status;
  }

 private:
  static constexpr QDir::Filters kEntries = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;

  static Status refusal(const String& path) {
    return failure(QFileInfo::exists(resourceAt(path)) ? std::errc::read_only_file_system
                                                       : std::errc::no_such_file_or_directory,
                   path);
  }

  std::shared_ptr<FileManager> others_;
};

}  // namespace

std::string pathOfResource(std::string_view qtPath) {
  return qtPath == ":" || qtPath.starts_with(kQtRoot) ? '/' + std::string(qtPath)
                                                      : std::string(qtPath);
}

std::shared_ptr<platform::FileManager> makeResourceFiles(
    std::shared_ptr<platform::FileManager> others) {
  return std::make_shared<ResourceFiles>(std::move(others));
}

}  // namespace orvanta::qt
