#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/ByteSink.h>
#include <orvanta/text/Status.h>

namespace orvanta::strings {

/// Encodes UTF-8 as UTF-16, little-endian, with a byte-order mark, through a fixed-size buffer:
/// allocating a whole table takes longer than encoding it (benchmark row "update").
class Utf16Writer {
 public:
  /// `file` must outlive this.
  explicit Utf16Writer(ByteSink& file);
  ~Utf16Writer();
  Utf16Writer(const Utf16Writer&) = delete;
  Utf16Writer& operator=(const Utf16Writer&) = delete;

  /// Adds UTF-8. A character may be split between two calls.
  void append(std::string_view utf8);

  /// Writes what is buffered. Returns the first failure of any write, or of invalid UTF-8.
  Status finish();

 private:
  struct Buffers;

  void flush();

  ByteSink& file_;
  Status status_;
  std::unique_ptr<Buffers> buffers_;
  std::size_t size_ = 0;
};

}  // namespace orvanta::strings
