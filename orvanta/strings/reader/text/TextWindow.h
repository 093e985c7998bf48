#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// A piece of a text as UTF-8 that moves through the text, small enough to stay in the processor's
/// cache: what is in another encoding need never be there as a whole.
class TextWindow {
 public:
  explicit TextWindow(EncodedText text);

  /// The lines in the window; at the end of the text, all that is left. Valid until `advance`.
  [[nodiscard]] std::string_view lines() const noexcept { return {bytes_.get(), linesSize_}; }

  /// Where `lines` stand in the whole text.
  [[nodiscard]] std::size_t offset() const noexcept { return offset_; }

  /// Whether `lines` reach to the end of the text.
  [[nodiscard]] bool atEnd() const noexcept { return transcoder_.atEnd(); }

  /// Drops `consumed` bytes of `lines` and fills up. False, with nothing done, when that would
  /// bring too little that is new: something does not fit into a window.
  [[nodiscard]] bool advance(std::size_t consumed) noexcept;

 private:
  void fill() noexcept;

  Utf8Transcoder transcoder_;
  std::unique_ptr<char[]> bytes_;
  std::size_t size_ = 0;
  std::size_t linesSize_ = 0;
  std::size_t offset_ = 0;
};

}  // namespace orvanta::strings
