#pragma once

#include <cerrno>
#include <utility>

#include <orvanta/text/Status.h>

namespace orvanta::standard {

/// Repeats a system call that a signal has interrupted.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) {
    result = call();
  }
  return result;
}

/// The failure that `code`, a value of errno, stands for.
Status systemError(int code);

/// Success for 0, else the failure that errno now tells.
Status statusOfCall(int result);

/// Owns an open file; -1 for none.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor = -1) noexcept : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(other.release()) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() { static_cast<void>(close()); }

  [[nodiscard]] bool isOpen() const noexcept { return descriptor_ >= 0; }
  [[nodiscard]] int get() const noexcept { return descriptor_; }
  [[nodiscard]] int release() noexcept { return std::exchange(descriptor_, -1); }

  /// Closes the file, if there is one. 0, or -1 with errno.
  int close() noexcept;

 private:
  int descriptor_;
};

}  // namespace orvanta::standard
