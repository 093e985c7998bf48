#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/ByteSink.h>

namespace orvanta::strings {

/// A file that gets text as UTF-16, little-endian, behind a byte-order mark. Piece by piece through
/// a small buffer: memory for all of a table would take longer to be had than the table to be made.
class Utf16Writer {
 public:
  /// `file` must outlive this.
  explicit Utf16Writer(ByteSink& file);
  ~Utf16Writer();
  Utf16Writer(const Utf16Writer&) = delete;
  Utf16Writer& operator=(const Utf16Writer&) = delete;

  /// Adds UTF-8, of which a character may spread over two calls.
  void append(std::string_view utf8);

  /// Writes what is left over and tells whether all of it succeeded. Text that is not valid UTF-8
  /// fails.
  [[nodiscard]] FileOutcome finish();

 private:
  struct Buffers;

  void flush();

  ByteSink& file_;
  FileOutcome outcome_;
  std::unique_ptr<Buffers> buffers_;
  std::size_t size_ = 0;
};

}  // namespace orvanta::strings
