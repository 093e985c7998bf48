#include <system_error>

#include <unistd.h>

#include <orvanta/standard/FileDescriptor.h>

namespace orvanta::standard {

FileError systemError(int code) {
  return {static_cast<std::uint64_t>(code), String(std::generic_category().message(code))};
}

FileOutcome outcomeOfCall(int result) {
  if (result == 0) {
    return std::nullopt;
  }
  return systemError(errno);
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
  // Never repeated after an interruption: the descriptor is gone by then and may be another's.
  const int result = ::close(release());
  return result == -1 && errno == EINTR ? 0 : result;
}

}  // namespace orvanta::standard
