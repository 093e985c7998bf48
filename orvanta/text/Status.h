#pragma once

#include <cstdint>
#include <system_error>
#include <utility>

#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// Whether an operation succeeded, and if not, why.
class [[nodiscard]] Status {
 public:
  /// Success.
  Status() noexcept = default;
  /// A failure: the system's error number (a value of errno), and what to tell people.
  Status(int code, String localizedDescription) noexcept
      : failed_(true), code_(code), localizedDescription_(std::move(localizedDescription)) {}

  /// Whether the operation succeeded.
  [[nodiscard]] bool ok() const noexcept { return !failed_; }
  /// Whether it failed with this error.
  [[nodiscard]] bool is(std::errc error) const noexcept {
    return failed_ && code_ == static_cast<int>(error);
  }

  /// Whether it failed for want of descriptors or memory, so that it may succeed at another time.
  [[nodiscard]] bool isShortage() const noexcept {
    return is(std::errc::too_many_files_open) || is(std::errc::too_many_files_open_in_system) ||
           is(std::errc::not_enough_memory);
  }

  /// The system's error number; 0 on success.
  [[nodiscard]] int code() const noexcept { return code_; }
  /// What to tell people; absent on success.
  [[nodiscard]] const String& localizedDescription() const noexcept ORVANTA_LIFETIME_BOUND {
    return localizedDescription_;
  }

 private:
  bool failed_ = false;
  int code_ = 0;
  String localizedDescription_;
};

}  // namespace orvanta
