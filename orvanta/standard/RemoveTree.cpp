#include <string>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <orvanta/standard/DirectoryStream.h>
#include <orvanta/standard/RemoveTree.h>

namespace orvanta::standard {

namespace {

// Empties a folder without recursion. Goes down into a sub-folder by its name and back up by "..",
// with one folder open at a time. When somebody moves a sub-folder meanwhile, its ".." is another
// folder than the one it was entered from; device and inode numbers tell.
class TreeRemover {
 public:
  // 0, or the errno of the first failure.
  int empty(FileDescriptor root) {
    int failure = enter(std::move(root), {});
    while (failure == 0 && folder_ != nullptr) {
      failure = step();
    }
    return failure;
  }

 private:
  struct Level {
    std::string name;
    dev_t device;
    ino_t item;
    bool removedSome;
  };

  int descriptor() const { return ::dirfd(folder_.get()); }

  int enter(FileDescriptor folder, std::string name) {
    struct stat status {};
    if (!folder.isOpen() || ::fstat(folder.get(), &status) != 0) {
      return errno;
    }
    DirectoryStream stream = openDirectoryStream(std::move(folder));
    if (stream == nullptr) {
      return errno;
    }
    folder_ = std::move(stream);
    levels_.push_back({std::move(name), status.st_dev, status.st_ino, false});
    return 0;
  }

  int step() {
    errno = 0;
    const dirent* entry = ::readdir(folder_.get());
    if (entry != nullptr) {
      const std::string name(static_cast<const char*>(entry->d_name));
      return name == "." || name == ".." ? 0 : remove(name);
    }
    if (errno != 0) {
      return errno;
    }
    if (std::exchange(levels_.back().removedSome, false)) {
      // A listing may leave entries out when others are removed meanwhile.
      ::rewinddir(folder_.get());
      return 0;
    }
    return leave();
  }

  int remove(const std::string& name) {
    if (::unlinkat(descriptor(), name.c_str(), 0) == 0) {
      levels_.back().removedSome = true;
      return 0;
    }
    const int failure = errno;
    if (failure == ENOENT) {
      return 0;
    }
    struct stat status {};
    if (::fstatat(descriptor(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISDIR(status.st_mode)) {
      return failure;
    }
    return enter(openDirectory(descriptor(), name, FinalLink::refuse), name);
  }

  int leave() {
    const Level left = std::move(levels_.back());
    levels_.pop_back();
    if (levels_.empty()) {
      folder_.reset();
      return 0;
    }
    const Level expected = std::move(levels_.back());
    levels_.pop_back();
    const int failure = enter(openDirectory(descriptor(), "..", FinalLink::refuse), expected.name);
    if (failure != 0) {
      return failure;
    }
    if (levels_.back().device != expected.device || levels_.back().item != expected.item) {
      return ENOENT;
    }
    levels_.back().removedSome = true;
    const bool isGone =
        ::unlinkat(descriptor(), left.name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT;
    return isGone ? 0 : errno;
  }

  DirectoryStream folder_;
  std::vector<Level> levels_;
};

}  // namespace

Status removeTree(const std::string& path) {
  if (::unlink(path.c_str()) == 0) {
    return {};
  }
  const int failure = errno;
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
    return systemError(failure);
  }
  // An empty folder may be removable although it may not be listed.
  if (::rmdir(path.c_str()) == 0) {
    return {};
  }
  const int emptied = TreeRemover().empty(openDirectory(AT_FDCWD, path, FinalLink::refuse));
  return emptied == 0 ? statusOfCall(::rmdir(path.c_str())) : systemError(emptied);
}

}  // namespace orvanta::standard
