#pragma once

#include <compare>

#include <orvanta/Export.h>

namespace orvanta::platform {

/// A version of the operating system, compared number by number.
struct OperatingSystemVersion {
  /// Counts first.
  long majorVersion = 0;
  /// Counts where the major versions are equal.
  long minorVersion = 0;
  /// Counts last.
  long patchVersion = 0;

  /// Number by number.
  // NOLINTNEXTLINE(modernize-use-nullptr): takes the 0 of a defaulted comparison for null.
  friend auto operator<=>(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

/// What the process knows about the system that it runs on. Thread-safe.
class ORVANTA_EXPORT ProcessInfo {
 public:
  virtual ~ProcessInfo();
  ProcessInfo(const ProcessInfo&) = delete;
  ProcessInfo& operator=(const ProcessInfo&) = delete;

  /// Whether the system's version is `version` or a later one.
  [[nodiscard]] virtual bool isOperatingSystemAtLeastVersion(
      const OperatingSystemVersion& version) const = 0;

 protected:
  ProcessInfo() = default;
};

}  // namespace orvanta::platform
