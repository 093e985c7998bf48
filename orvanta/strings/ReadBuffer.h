#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/text/Memory.h>

namespace orvanta::strings {

/// Reads whole files into memory, one after the other. The buffer is reused: page faults on fresh
/// memory take longer than reading a file into it (benchmark row startup-configured-last).
class ReadBuffer {
 public:
  /// Called with all bytes read so far.
  using Observer = std::function<void(std::string_view bytes)>;

  /// Reads a file to its end. `expectedSize` is a hint; the file may be larger or smaller. False,
  /// with an empty view, when reading fails or the file is larger than a string table may be. An
  /// observer is called after each piece, which is then still in the processor's cache. Throws
  /// `std::bad_alloc`.
  [[nodiscard]] bool read(ByteSource& file, std::uint64_t expectedSize,
                          const Observer& observer = {});

  /// Valid until the next change.
  [[nodiscard]] std::string_view view() const noexcept { return {data_.get(), size_}; }

  /// Frees the memory.
  void release() noexcept;

 private:
  void reserve(std::size_t capacity);
  [[nodiscard]] bool readToEnd(ByteSource& file, const Observer& observer);

  Bytes data_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace orvanta::strings
