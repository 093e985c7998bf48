#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/ByteSink.h>
#include <orvanta/strings/encoding/Utf8ToUtf16.h>
#include <orvanta/text/Status.h>

namespace orvanta::strings {

/// Encodes UTF-8 as UTF-16, little-endian, with a byte-order mark, through a fixed-size buffer:
/// allocating a whole table takes longer than encoding it (benchmark row "update").
class Utf16Writer {
 public:
  /// `file` must outlive this.
  explicit Utf16Writer(ByteSink& file);
  Utf16Writer(const Utf16Writer&) = delete;
  Utf16Writer& operator=(const Utf16Writer&) = delete;

  /// Adds UTF-8. A character may be split between two calls. Inline for the benchmark's row
  /// "update": a statement is five short pieces.
  void append(std::string_view utf8) {
    if (utf8.size() < kSize - size_) {
      std::copy(utf8.begin(), utf8.end(), buffers_->utf8 + size_);
      size_ += utf8.size();
    } else {
      appendAndFlush(utf8);
    }
  }

  /// Writes what is buffered. Returns the first failure of any write, or of invalid UTF-8.
  Status finish();

 private:
  static constexpr std::size_t kSize = std::size_t{32} * 1024;
  struct Buffers {
    char utf8[kSize];
    char utf16[2 * kSize + kUtf16Slack];
  };

  void appendAndFlush(std::string_view utf8);
  void flush();

  ByteSink& file_;
  Status status_;
  std::unique_ptr<Buffers> buffers_;
  std::size_t size_ = 0;
};

}  // namespace orvanta::strings
