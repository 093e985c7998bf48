#pragma once

#include <compare>

#include <orvanta/Export.h>

namespace orvanta::platform {

struct OperatingSystemVersion {
  long majorVersion = 0;
  long minorVersion = 0;
  long patchVersion = 0;

  friend auto operator<=>(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

/// What the process knows about the system that it runs on. Safe to ask from any thread.
class ORVANTA_EXPORT ProcessInfo {
 public:
  virtual ~ProcessInfo();
  ProcessInfo(const ProcessInfo&) = delete;
  ProcessInfo& operator=(const ProcessInfo&) = delete;

  [[nodiscard]] virtual bool isOperatingSystemAtLeastVersion(
      const OperatingSystemVersion& version) = 0;

 protected:
  ProcessInfo() = default;
};

}  // namespace orvanta::platform
