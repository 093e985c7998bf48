#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <orvanta/standard/FileDescriptor.h>
#include <orvanta/standard/Folders.h>

namespace orvanta::standard {

namespace {

struct CloseFolder {
  void operator()(DIR* folder) const noexcept { ::closedir(folder); }
};

// Empties a folder, going down into sub-folders by name and up again by "..". Only the folder that
// it stands in is open; that "..", reached after a rename by somebody else, is still the folder it
// came from is checked by the folders' numbers.
class TreeRemover {
 public:
  // 0, or the errno of the first failure.
  int empty(int root) {
    int failure = enter(root);
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

  int enter(int file, std::string name = {}) {
    FileDescriptor owned(file);
    struct stat status {};
    if (!owned.isOpen() || ::fstat(file, &status) != 0) {
      return errno;
    }
    std::unique_ptr<DIR, CloseFolder> folder(::fdopendir(file));
    if (folder == nullptr) {
      return errno;
    }
    static_cast<void>(owned.release());
    folder_ = std::move(folder);
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
      // A listing during which entries go may pass others over.
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
    return enter(uninterrupted([&] {
                   return ::openat(descriptor(), name.c_str(),
                                   O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
                 }),
                 name);
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
    const int failure =
        enter(uninterrupted(
                  [&] { return ::openat(descriptor(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }),
              expected.name);
    if (failure != 0) {
      return failure;
    }
    if (levels_.back().device != expected.device || levels_.back().item != expected.item) {
      return ENOENT;
    }
    levels_.back().removedSome = true;
    return ::unlinkat(descriptor(), left.name.c_str(), AT_REMOVEDIR) == 0 ? 0 : errno;
  }

  std::unique_ptr<DIR, CloseFolder> folder_;
  std::vector<Level> levels_;
};

}  // namespace

FileOutcome removeTree(const std::string& path) {
  if (::unlink(path.c_str()) == 0) {
    return std::nullopt;
  }
  const int failure = errno;
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
    return systemError(failure);
  }
  // An empty folder may go even where it may not be listed.
  if (::rmdir(path.c_str()) == 0) {
    return std::nullopt;
  }
  const int emptied = TreeRemover().empty(uninterrupted(
      [&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); }));
  if (emptied != 0) {
    return systemError(emptied);
  }
  return outcomeOfCall(::rmdir(path.c_str()));
}

}  // namespace orvanta::standard
