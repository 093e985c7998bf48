#include <system_error>

#include <unistd.h>

#include <orvanta/standard/FileDescriptor.h>

namespace orvanta::standard {

Status systemError(int code) {
  return {code, String(std::generic_category().message(code))};
}

Status statusOfCall(int result) {
  return result == 0 ? Status() : systemError(errno);
}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
  if (this != &other) {
    static_cast<void>(close());
    descriptor_ = other.release();
  }
  return *this;
}

int FileDescriptor::close() noexcept {
  if (!isOpen()) {
    return 0;
  }
  // Not repeated after an interruption: the descriptor is closed by then, and its number may
  // already belong to another file.
  const int result = ::close(release());
  return result == -1 && errno == EINTR ? 0 : result;
}

}  // namespace orvanta::standard
