#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <orvanta/standard/FileDescriptor.h>
#include <orvanta/standard/Folders.h>
#include <orvanta/standard/OpenFiles.h>
#include <orvanta/standard/StandardFiles.h>

namespace orvanta::standard {

namespace {

// The path as the system takes it. Empty, which names nothing, for what is no absolute path.
std::string systemPath(const String& path) {
  const std::string_view text = path.view();
  const bool isPath = text.starts_with('/') && text.find('\0') == std::string_view::npos;
  return isPath ? std::string(text) : std::string();
}

platform::ItemKind kindOf(mode_t mode) {
  if (S_ISREG(mode)) {
    return platform::ItemKind::file;
  }
  if (S_ISDIR(mode)) {
    return platform::ItemKind::directory;
  }
  return S_ISLNK(mode) ? platform::ItemKind::symbolicLink : platform::ItemKind::other;
}

platform::FileStamp stampOf(const struct stat& status) {
  constexpr std::int64_t kNanosecondsInSecond = 1'000'000'000;
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
          static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec * kNanosecondsInSecond + status.st_mtim.tv_nsec};
}

// Folders whose entries are still to be visited, the innermost last. Each is read as a whole
// before any entry is visited, so that depth costs memory but no open files.
struct PendingFolder {
  URL url;
  std::string path;
  std::vector<FolderEntry> entries;
  std::size_t next = 0;
};

void walk(std::vector<PendingFolder>& pending, const platform::FileManager::EntryVisitor& visit) {
  while (!pending.empty()) {
    PendingFolder& folder = pending.back();
    if (folder.next == folder.entries.size()) {
      pending.pop_back();
      continue;
    }
    const FolderEntry& entry = folder.entries[folder.next++];
    if (entry.name.starts_with('.')) {
      continue;
    }
    const URL url = folder.url.URLByAppendingPathComponent(entry.name, entry.isDirectory);
    visit(url, entry.isDirectory);
    if (entry.isDirectory) {
      std::string path = folder.path + '/' + entry.name;
      if (auto entries = listFolder(path, FinalLink::refuse)) {
        pending.push_back({url, std::move(path), *std::move(entries)});
      }
    }
  }
}

class StandardFileManager final : public platform::FileManager {
 public:
  explicit StandardFileManager(String cachesPath) : cachesPath_(std::move(cachesPath)) {}

  URL cachesDirectoryURL() override {
    URL url = URL::fileURLWithPath(cachesPath_, true);
    if (url.isPresent()) {
      // Where it cannot be made, whoever writes into it is told why.
      static_cast<void>(createDirectoryAtURL(url));
    }
    return url;
  }

  bool fileExistsAtPath(const String& path) override {
    struct stat status {};
    return ::stat(systemPath(path).c_str(), &status) == 0;
  }

  platform::ItemKind itemKindAtPath(const String& path) override {
    struct stat status {};
    return ::lstat(systemPath(path).c_str(), &status) == 0 ? kindOf(status.st_mode)
                                                           : platform::ItemKind::missing;
  }

  std::optional<platform::FileStamp> stampOfFileAtPath(const String& path) override {
    struct stat status {};
    if (::stat(systemPath(path).c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
      return std::nullopt;
    }
    return stampOf(status);
  }

  FileOutcome createDirectoryAtURL(const URL& url) override {
    std::error_code error;
    std::filesystem::create_directories(systemPath(url.path()), error);
    if (error) {
      return systemError(error.value());
    }
    return std::nullopt;
  }

  FileOutcome removeItemAtURL(const URL& url) override {
    return removeTree(systemPath(url.path()));
  }

  std::vector<URL> contentsOfDirectoryAtURL(const URL& url) override {
    std::vector<URL> contents;
    if (const auto entries = listFolder(systemPath(url.path()), FinalLink::follow)) {
      contents.reserve(entries->size());
      for (const FolderEntry& entry : *entries) {
        contents.push_back(url.URLByAppendingPathComponent(entry.name, entry.isDirectory));
      }
    }
    return contents;
  }

  void enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) override {
    std::string path = systemPath(url.path());
    if (auto entries = listFolder(path, FinalLink::follow)) {
      std::vector<PendingFolder> pending;
      pending.push_back({url, std::move(path), *std::move(entries)});
      walk(pending, visit);
    }
  }

  std::unique_ptr<platform::ReadableFile> openFileForReading(const String& path) override {
    return openForReading(systemPath(path));
  }

  Creation createFile(const String& path) override { return createForWriting(systemPath(path)); }

  FileOutcome removeFileUnlessInUse(const String& path) override {
    return removeUnlessInUse(systemPath(path));
  }

  FileOutcome moveItemReplacing(const String& from, const String& to) override {
    return outcomeOfCall(std::rename(systemPath(from).c_str(), systemPath(to).c_str()));
  }

  FileOutcome syncDirectory(const String& path) override {
    const std::string folder = systemPath(path);
    const FileDescriptor file(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!file.isOpen()) {
      return systemError(errno);
    }
    return outcomeOfCall(uninterrupted([&] { return ::fsync(file.get()); }));
  }

 private:
  String cachesPath_;
};

}  // namespace

std::shared_ptr<platform::FileManager> makeFileManager(String cachesPath) {
  return std::make_shared<StandardFileManager>(std::move(cachesPath));
}

}  // namespace orvanta::standard
