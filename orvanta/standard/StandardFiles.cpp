#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include <orvanta/standard/DirectoryStream.h>
#include <orvanta/standard/OpenFiles.h>
#include <orvanta/standard/PosixFolder.h>
#include <orvanta/standard/RemoveTree.h>
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

// A folder of which some entries are still to be visited. It is listed as a whole before any entry
// is visited, so that depth costs memory but no open files.
struct PendingFolder {
  URL url;
  std::string path;
  std::vector<platform::Folder::Entry> entries;
  std::size_t next = 0;
};

platform::Folder::Listing listFolder(const std::string& path, FinalLink link) {
  return listDirectory(openDirectory(AT_FDCWD, path, link));
}

// `pending` holds the folders on the way, the innermost last.
Status walk(std::vector<PendingFolder> pending, const platform::FileManager::EntryVisitor& visit) {
  Status result;
  while (!pending.empty()) {
    PendingFolder& folder = pending.back();
    if (folder.next == folder.entries.size()) {
      pending.pop_back();
      continue;
    }
    const platform::Folder::Entry& entry = folder.entries[folder.next++];
    if (entry.name.view().starts_with('.')) {
      continue;
    }
    const URL url = folder.url.URLByAppendingPathComponent(entry.name.view(), entry.isDirectory);
    if (visit) {
      visit(url, entry.isDirectory);
    }
    if (entry.isDirectory) {
      std::string path = folder.path + '/' + entry.name.str();
      platform::Folder::Listing listing = listFolder(path, FinalLink::refuse);
      if (listing.status.ok()) {
        pending.push_back({url, std::move(path), std::move(listing.entries)});
      } else if (result.ok() && listing.status.isShortage()) {
        result = listing.status;
      }
    }
  }
  return result;
}

class StandardFileManager final : public platform::FileManager {
 public:
  explicit StandardFileManager(String cachesPath) : cachesPath_(std::move(cachesPath)) {}

  URL cachesDirectoryURL() override { return URL::fileURLWithPath(cachesPath_, true); }

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

  platform::Folder::Opening openFolder(const String& path) override {
    return makeFolder(openDirectory(AT_FDCWD, systemPath(path), FinalLink::follow));
  }

  std::unique_ptr<platform::ReadableFile> openFileForReading(const String& path) override {
    return openForReading(systemPath(path));
  }

  Status removeItemAtURL(const URL& url) override {
    const String path = url.path();
    const Status status = removeTree(systemPath(path));
    return status.ok()
               ? status
               : Status(status.code(), path.str() + ": " + status.localizedDescription().str());
  }

  Contents contentsOfDirectoryAtURL(const URL& url) override {
    platform::Folder::Listing listing = listFolder(systemPath(url.path()), FinalLink::follow);
    Contents contents{{}, std::move(listing.status)};
    contents.entries.reserve(listing.entries.size());
    for (const platform::Folder::Entry& entry : listing.entries) {
      contents.entries.push_back(
          url.URLByAppendingPathComponent(entry.name.view(), entry.isDirectory));
    }
    return contents;
  }

  Status enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) override {
    std::string path = systemPath(url.path());
    platform::Folder::Listing listing = listFolder(path, FinalLink::follow);
    if (!listing.status.ok()) {
      return listing.status;
    }
    std::vector<PendingFolder> pending;
    pending.push_back({url, std::move(path), std::move(listing.entries)});
    return walk(std::move(pending), visit);
  }

 private:
  String cachesPath_;
};

}  // namespace

std::shared_ptr<platform::FileManager> makeFileManager(String cachesPath) {
  return std::make_shared<StandardFileManager>(std::move(cachesPath));
}

}  // namespace orvanta::standard
