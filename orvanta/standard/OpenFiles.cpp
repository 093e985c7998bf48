#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <orvanta/standard/FileDescriptor.h>
#include <orvanta/standard/OpenFiles.h>

namespace orvanta::standard {

namespace {

class PosixReadableFile final : public platform::ReadableFile {
 public:
  explicit PosixReadableFile(FileDescriptor file) : file_(std::move(file)) {}

  std::optional<std::size_t> read(std::span<char> buffer) override {
    const ssize_t count =
        uninterrupted([&] { return ::read(file_.get(), buffer.data(), buffer.size()); });
    return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
  }

 private:
  FileDescriptor file_;
};

class PosixWritableFile final : public platform::WritableFile {
 public:
  explicit PosixWritableFile(FileDescriptor file) : file_(std::move(file)) {}

  Status write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t count =
          uninterrupted([&] { return ::write(file_.get(), bytes.data(), bytes.size()); });
      if (count < 0) {
        return systemError(errno);
      }
      bytes.remove_prefix(static_cast<std::size_t>(count));
      written_ += count;
    }
    startWriteBack();
    return {};
  }

  Status sync() override {
    return statusOfCall(uninterrupted([&] { return ::fsync(file_.get()); }));
  }

  Status close() override { return statusOfCall(file_.close()); }

 private:
  // Starts writing to the disk while the caller makes the next bytes, so that `sync` has less to
  // wait for (benchmark row "update"). A failure is ignored: `sync` meets it again.
  void startWriteBack() noexcept {
#ifdef SYNC_FILE_RANGE_WRITE
    constexpr off_t kWorthACall = off_t{1024} * 1024;
    if (written_ - startedTo_ >= kWorthACall) {
      static_cast<void>(
          ::sync_file_range(file_.get(), startedTo_, written_ - startedTo_, SYNC_FILE_RANGE_WRITE));
      startedTo_ = written_;
    }
#endif
  }

  FileDescriptor file_;
  off_t written_ = 0;
  off_t startedTo_ = 0;
};

// Closed when it cannot be opened or is no regular file; errno then says why.
FileDescriptor openRegularFile(int folder, const std::string& path, int moreFlags) {
  FileDescriptor file(uninterrupted([&] {
    return ::openat(folder, path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | moreFlags);
  }));
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.get(), &status) != 0) {
    return FileDescriptor();
  }
  if (!S_ISREG(status.st_mode)) {
    file = FileDescriptor();
    errno = EINVAL;
  }
  return file;
}

enum class Lock { taken, heldElsewhere, impossible };

// Never waits: whoever holds the lock may hold it for ever.
Lock lock(int file) {
  if (uninterrupted([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0) {
    return Lock::taken;
  }
  return errno == EWOULDBLOCK ? Lock::heldElsewhere : Lock::impossible;
}

bool isStillAt(int folder, const std::string& name, int file) {
  struct stat opened {};
  struct stat found {};
  return ::fstat(file, &opened) == 0 &&
         ::fstatat(folder, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 &&
         opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

}  // namespace

std::unique_ptr<platform::ReadableFile> openForReading(const std::string& path) {
  FileDescriptor file = openRegularFile(AT_FDCWD, path, 0);
  return file.isOpen() ? std::make_unique<PosixReadableFile>(std::move(file)) : nullptr;
}

platform::Folder::Creation createLockedFile(int folder, const std::string& name) {
  constexpr mode_t kModeBeforeUmask = 0666;
  FileDescriptor file(uninterrupted([&] {
    return ::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                    kModeBeforeUmask);
  }));
  if (!file.isOpen()) {
    return {nullptr, systemError(errno)};
  }
  const bool isLockedElsewhere = lock(file.get()) == Lock::heldElsewhere;
  // A process that looks for abandoned files may have locked it first, or removed it.
  if (!isStillAt(folder, name, file.get())) {
    return {nullptr, systemError(EAGAIN)};
  }
  if (isLockedElsewhere) {
    static_cast<void>(::unlinkat(folder, name.c_str(), 0));
    return {nullptr, systemError(EAGAIN)};
  }
  return {std::make_unique<PosixWritableFile>(std::move(file)), {}};
}

Status removeUnlessLocked(int folder, const std::string& name) {
  const FileDescriptor file(openRegularFile(folder, name, O_NOFOLLOW));
  if (!file.isOpen()) {
    return systemError(errno);
  }
  switch (lock(file.get())) {
    case Lock::heldElsewhere:
      return {};
    case Lock::impossible:
      return systemError(errno);
    case Lock::taken:
      break;
  }
  return statusOfCall(::unlinkat(folder, name.c_str(), 0));
}

}  // namespace orvanta::standard
