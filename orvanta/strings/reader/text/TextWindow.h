#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// A moving window of UTF-8 over a text in another encoding, small enough to stay in the
/// processor's cache. The text is never converted as a whole.
class TextWindow {
 public:
  explicit TextWindow(EncodedText text);

  /// The lines in the window; at the end of the text, all that is left. Valid until `advance`.
  [[nodiscard]] std::string_view lines() const noexcept { return {bytes_.get(), linesSize_}; }

  /// The offset of `lines` in the whole text.
  [[nodiscard]] std::size_t offset() const noexcept { return offset_; }

  /// Whether `lines` reach to the end of the text.
  [[nodiscard]] bool atEnd() const noexcept { return transcoder_.atEnd(); }

  /// Whether any character so far was damaged, or the text ends within a character.
  [[nodiscard]] bool isDamaged() const noexcept {
    return transcoder_.replacements() > 0 || transcoder_.isTorn();
  }

  /// Drops the first `consumed` bytes of `lines` and refills the window. False, with nothing done,
  /// when less than half of the window would be new: a statement or comment is too long for it.
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
