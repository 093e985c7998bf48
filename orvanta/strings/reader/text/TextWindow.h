#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include <orvanta/strings/ByteSource.h>
#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// A moving window of UTF-8 over a text file in UTF-8 or UTF-16, small enough to stay in the
/// processor's cache. The file is never in memory as a whole, which would need fresh pages for all
/// of it (benchmark rows `load-*`).
class TextWindow {
 public:
  /// Reads the beginning of the file, which must outlive the window. Throws `std::bad_alloc`.
  explicit TextWindow(ByteSource& file);

  /// The lines in the window; at the end of the file, all that is left. Valid until `advance`.
  [[nodiscard]] std::string_view lines() const noexcept { return {bytes_.get(), linesSize_}; }

  /// How many bytes of UTF-8 a byte of the beginning of the file became.
  [[nodiscard]] double growth() const noexcept { return growth_; }

  /// Whether `lines` reach to the end of the file.
  [[nodiscard]] bool atEnd() const noexcept { return atEnd_; }

  /// False when the file could not be read so far, a character that was read is damaged, or the
  /// file is in another encoding or too large for a table.
  [[nodiscard]] bool isSound() const noexcept { return isSound_; }

  /// Drops the first `consumed` bytes of `lines` and refills the window. False, with nothing done,
  /// when less than half of the window would be new: a statement or comment is too long for it.
  [[nodiscard]] bool advance(std::size_t consumed);

 private:
  // Appends what the file has next to `size` bytes, up to `limit`.
  void readOn(char* bytes, std::size_t& size, std::size_t limit);
  void transcode() noexcept;
  // The first `checked` bytes are known to be valid.
  void endAtLineBreak(std::size_t checked) noexcept;

  ByteSource& file_;
  std::uint64_t read_ = 0;  // Bytes of the file.
  TextEncoding encoding_ = TextEncoding::kUtf8;
  std::unique_ptr<char[]> encoded_;  // Of a file in UTF-16, what is not yet converted.
  std::size_t encodedSize_ = 0;
  std::unique_ptr<char[]> bytes_;
  std::size_t size_ = 0;
  std::size_t linesSize_ = 0;
  double growth_ = 1;
  bool atEnd_ = false;
  bool isSound_ = true;
};

}  // namespace orvanta::strings
