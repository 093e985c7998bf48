#include <fcntl.h>
#include <orvanta/platform/standard/FileDescriptor.h>
#include <orvanta/platform/standard/OpenFiles.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvanta::platform::standard {

namespace {

class PosixReadableFile final : public ReadableFile {
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

class PosixWritableFile final : public WritableFile {
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
    }
    return std::nullopt;
  }

  FileOutcome sync() override {
    return outcomeOfCall(uninterrupted([&] { return ::fsync(file_.get()); }));
  }

  FileOutcome close() override { return outcomeOfCall(file_.close()); }

 private:
  FileDescriptor file_;
};

}  // namespace

std::unique_ptr<ReadableFile> openForReading(const std::string& path) {
  FileDescriptor file(uninterrupted(
      [&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return nullptr;
  }
  return std::make_unique<PosixReadableFile>(std::move(file));
}

FileManager::Creation createForWriting(const std::string& path) {
  constexpr mode_t kWhatTheUmaskLeaves = 0666;
  FileDescriptor file(uninterrupted([&] {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                  kWhatTheUmaskLeaves);
  }));
  if (!file.isOpen()) {
    return {nullptr, systemError(errno)};
  }
  return {std::make_unique<PosixWritableFile>(std::move(file)), std::nullopt};
}

}  // namespace orvanta::platform::standard
