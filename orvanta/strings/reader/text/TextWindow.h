#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// A piece of a text as UTF-8 that moves through the text, small enough to stay in the processor's
/// cache. Text in another encoding is never converted as a whole.
class TextWindow {
 public:
  explicit TextWindow(EncodedText text);

  /// The lines in the window; at the end of the text, all that is left. Valid until `advance`.
  [[nodiscard]] std::string_view lines() const noexcept { return {bytes_.get(), linesSize_}; }

  /// The offset of `lines` in the whole text.
  [[nodiscard]] std::size_t offset() const noexcept { return offset_; }

  /// Whether `lines` reach to the end of the text.
  [[nodiscard]] bool atEnd() const noexcept { return transcoder_.atEnd(); }

  /// Whether a character was damaged so far, or is torn at the end of the text.
  [[nodiscard]] bool isDamaged() const noexcept {
    return transcoder_.replacements() > 0 || transcoder_.isTorn();
  }

  /// Drops `consumed` bytes of `lines` and fills up. False, with nothing done, when less than half
  /// of the window would be new: a statement or comment does not fit into it.
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
