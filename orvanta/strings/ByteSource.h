#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include <orvanta/Export.h>

namespace orvanta::strings {

/// Bytes that are read in order, from the start.
class ORVANTA_EXPORT ByteSource {
 public:
  virtual ~ByteSource();
  /// Fills `buffer` from where the last read ended. The number of bytes read, 0 at the end;
  /// absent when reading failed.
  [[nodiscard]] virtual std::optional<std::size_t> read(std::span<char> buffer) = 0;

 protected:
  ByteSource() = default;
  /// For implementations.
  ByteSource(const ByteSource&) = default;
  /// For implementations.
  ByteSource& operator=(const ByteSource&) = default;
};

}  // namespace orvanta::strings
