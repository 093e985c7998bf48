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
  /// Reads on from where the last read ended, as much as `buffer` holds or less. The number of
  /// bytes read, 0 only at the end or for an empty buffer; absent when reading failed.
  [[nodiscard]] virtual std::optional<std::size_t> read(std::span<char> buffer) = 0;

 protected:
  ByteSource() = default;
  /// For implementations.
  ByteSource(const ByteSource&) = default;
  /// For implementations.
  ByteSource& operator=(const ByteSource&) = default;
};

}  // namespace orvanta::strings
