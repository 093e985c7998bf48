#include "ReplaceFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "Settings.h"

namespace ovlocalize {

namespace {

namespace fs = std::filesystem;

/// A new file beside the one that it will replace. Deleted unless it does.
class NewFile {
 public:
  explicit NewFile(const std::string& file) : path_(file + ".XXXXXX") {
    descriptor_ = ::mkstemp(path_.data());
    check(descriptor_ >= 0);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    if (descriptor_ >= 0) {
      ::close(descriptor_);
      ::unlink(path_.c_str());
    }
  }

  void takePermissionsOf(const std::string& file) const {
    struct stat old {};
    const ::mode_t mask = ::umask(0);
    ::umask(mask);
    const ::mode_t mode = ::stat(file.c_str(), &old) == 0 ? old.st_mode & 07777 : 0666 & ~mask;
    check(::fchmod(descriptor_, mode) == 0);
  }

  void write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      check(count >= 0 || errno == EINTR);
      bytes.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    check(::fsync(descriptor_) == 0);
  }

  void replace(const std::string& file) {
    check(::rename(path_.c_str(), file.c_str()) == 0);
    ::close(descriptor_);
    descriptor_ = -1;
  }

 private:
  static void check(bool isDone) {
    if (!isDone) {
      throw std::system_error(errno, std::generic_category());
    }
  }

  std::string path_;
  int descriptor_ = -1;
};

}  // namespace

void replaceFile(const std::string& file, const std::string& contents) {
  try {
    // A link stays one.
    const std::string target = fs::weakly_canonical(fs::absolute(file)).string();
    if (fs::exists(target) && !fs::is_regular_file(target)) {
      throw Failure("cannot write " + file + ": it is not a regular file");
    }
    fs::create_directories(fs::path(target).parent_path());
    NewFile next(target);
    next.takePermissionsOf(target);
    next.write(contents);
    next.replace(target);
  } catch (const std::system_error& error) {
    throw Failure("cannot write " + file + ": " + error.code().message());
  }
}

}  // namespace ovlocalize
