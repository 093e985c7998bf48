#include "FileContents.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Settings.h"

namespace ovlocalize {

namespace {

class OpenFile {
 public:
  // Without blocking: a pipe that nobody writes to would be waited for.
  explicit OpenFile(const std::string& file)
      : descriptor_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor_ >= 0) {
      ::close(descriptor_);
    }
  }
  [[nodiscard]] int descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

[[noreturn]] void refuse(const std::string& file, int error) {
  throw Failure("cannot read " + nameOf(file) + ": " + std::generic_category().message(error));
}

std::string readAll(const std::string& file, int descriptor) {
  std::string contents;
  std::string buffer(std::size_t{1} << 16, '\0');
  for (;;) {
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
      contents.append(buffer, 0, static_cast<std::size_t>(count));
    } else if (count == 0) {
      return contents;
    } else if (errno != EINTR) {
      refuse(file, errno);
    }
  }
}

}  // namespace

std::string nameOf(const std::string& file) {
  return file == "-" ? "standard input" : file;
}

std::string contentsOf(const std::string& file) {
  if (file == "-") {
    return readAll(file, STDIN_FILENO);
  }
  const OpenFile opened(file);
  struct stat status {};
  if (opened.descriptor() < 0 || ::fstat(opened.descriptor(), &status) != 0) {
    refuse(file, errno);
  }
  if (!S_ISREG(status.st_mode)) {
    throw Failure("cannot read " + file + ": not a regular file (for a pipe, give - and redirect)");
  }
  return readAll(file, opened.descriptor());
}

}  // namespace ovlocalize
