#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/text/Memory.h>

namespace orvanta::strings {

/// The bytes of a whole file. The memory is kept for the next file: fresh memory costs more than
/// reading a file into it. Row startup-configured-last.
class ReadBuffer {
 public:
  /// Gets all bytes so far.
  using Observer = std::function<void(std::string_view bytes)>;

  /// Reads a file, whose size may have changed since it was `expectedSize`. False, with no bytes,
  /// when it cannot be read to its end or is larger than a string table may be. An observer is
  /// called after each piece, while that is in a core's own cache. Throws `std::bad_alloc`.
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
