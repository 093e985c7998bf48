#pragma once

#include <orvanta/Export.h>
#include <orvanta/strings/ByteSink.h>
#include <orvanta/text/Status.h>

namespace orvanta::platform {

/// A new file open for writing. Closed with the object; only `close` tells whether that worked.
class ORVANTA_EXPORT WritableFile : public strings::ByteSink {
 public:
  ~WritableFile() override;
  /// Succeeds once what was written would survive a loss of power.
  virtual Status sync() = 0;
  /// Ends the writing. Later operations fail.
  virtual Status close() = 0;

 protected:
  WritableFile() = default;
  /// For implementations.
  WritableFile(const WritableFile&) = default;
  /// For implementations.
  WritableFile& operator=(const WritableFile&) = default;
};

}  // namespace orvanta::platform
