#pragma once

#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/Status.h>

namespace orvanta::strings {

/// Takes bytes in order.
class ORVANTA_EXPORT ByteSink {
 public:
  virtual ~ByteSink();
  /// Appends all of `bytes`, or fails having appended any part of them.
  virtual Status write(std::string_view bytes) = 0;

 protected:
  ByteSink() = default;
  /// For implementations.
  ByteSink(const ByteSink&) = default;
  /// For implementations.
  ByteSink& operator=(const ByteSink&) = default;
};

}  // namespace orvanta::strings
