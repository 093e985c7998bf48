#pragma once

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// Where the library's few messages go. Thread-safe.
class ORVANTA_EXPORT Log {
 public:
  virtual ~Log();
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  /// One message, without a line feed at its end. Does not throw: the library logs in the middle of
  /// its work.
  virtual void log(const String& message) noexcept = 0;

 protected:
  Log() = default;
};

}  // namespace orvanta::platform
