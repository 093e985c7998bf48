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
    std::size_t filled = 0;
    while (filled < buffer.size()) {
      const ssize_t count = uninterrupted(
          [&] { return ::read(file_.get(), buffer.data() + filled, buffer.size() - filled); });
      if (count < 0) {
        return std::nullopt;
      }
      if (count == 0) {
        break;
      }
      filled += static_cast<std::size_t>(count);
    }
    return filled;
  }

 private:
  FileDescriptor file_;
};

class PosixWritableFile final : public platform::WritableFile {
 public:
  explicit PosixWritableFile(FileDescriptor file) : file_(std::move(file)) {}

  FileOutcome write(std::string_view bytes) override {
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
    return std::nullopt;
  }

  FileOutcome sync() override {
    return outcomeOfCall(uninterrupted([&] { return ::fsync(file_.get()); }));
  }

  FileOutcome close() override { return outcomeOfCall(file_.close()); }

 private:
  // Lets the disk begin while the caller makes what comes next, so that `sync` need not wait for
  // all of it. A hint: what fails here fails again there.
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
FileDescriptor openRegularFile(const std::string& path, int moreFlags) {
  FileDescriptor file(uninterrupted([&] {
    return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | moreFlags);
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

bool isStillAt(const std::string& path, int file) {
  struct stat opened {};
  struct stat found {};
  return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &found) == 0 &&
         opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

}  // namespace

std::unique_ptr<platform::ReadableFile> openForReading(const std::string& path) {
  FileDescriptor file = openRegularFile(path, 0);
  return file.isOpen() ? std::make_unique<PosixReadableFile>(std::move(file)) : nullptr;
}

platform::FileManager::Creation createForWriting(const std::string& path) {
  constexpr mode_t kWhatTheUmaskLeaves = 0666;
  for (;;) {
    FileDescriptor file(uninterrupted([&] {
      return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                    kWhatTheUmaskLeaves);
    }));
    if (!file.isOpen()) {
      return {nullptr, systemError(errno)};
    }
    // A file system without locks makes files all the same.
    static_cast<void>(uninterrupted([&] { return ::flock(file.get(), LOCK_EX); }));
    // Somebody who looks for abandoned files may have come before the lock and removed it.
    if (isStillAt(path, file.get())) {
      return {std::make_unique<PosixWritableFile>(std::move(file)), std::nullopt};
    }
  }
}

FileOutcome removeUnlessInUse(const std::string& path) {
  const FileDescriptor file(openRegularFile(path, O_NOFOLLOW));
  if (!file.isOpen()) {
    return systemError(errno);
  }
  if (uninterrupted([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) != 0) {
    return errno == EWOULDBLOCK ? std::nullopt : FileOutcome(systemError(errno));
  }
  // Whoever had it open may have moved it meanwhile.
  return isStillAt(path, file.get()) ? outcomeOfCall(::unlink(path.c_str())) : std::nullopt;
}

}  // namespace orvanta::standard
