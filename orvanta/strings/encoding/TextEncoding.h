#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace orvanta::strings {

enum class TextEncoding { kUtf8, kUtf16Little, kUtf16Big, kUtf32Little, kUtf32Big };

/// Bytes of text without the byte-order mark that they may have begun with.
struct EncodedText {
  TextEncoding encoding = TextEncoding::kUtf8;
  std::string_view bytes;
};

/// Tells the encoding by the byte-order mark or, where there is none, by where the zero bytes of
/// the first characters stand, which in a strings file are ASCII. Without either it is UTF-8.
[[nodiscard]] EncodedText detectEncoding(std::string_view bytes) noexcept;

/// Turns text into UTF-8, piece by piece. What is no character there (invalid UTF-8, a lone
/// surrogate, a torn unit at the end) becomes U+FFFD.
class Utf8Transcoder {
 public:
  /// Less room than this may be left over although there is more text.
  static constexpr std::size_t kSlack = 64;

  explicit Utf8Transcoder(EncodedText text) noexcept
      : encoding_(text.encoding), at_(text.bytes.data()), end_(at_ + text.bytes.size()) {}

  [[nodiscard]] bool atEnd() const noexcept { return at_ == end_; }

  /// The room in which all that is left is certain to fit at once.
  [[nodiscard]] std::size_t roomForRest() const noexcept;

  /// Writes as much as fits into `out` and gives the number of bytes written. All of `room` may be
  /// overwritten.
  std::size_t transcode(char* out, std::size_t room) noexcept;

 private:
  TextEncoding encoding_;
  const char* at_;
  const char* end_;
};

/// All of a text as UTF-8, at once. Valid UTF-8 is not copied.
class WholeUtf8 {
 public:
  explicit WholeUtf8(EncodedText text);

  /// Valid as long as this object and the bytes that it was made from live.
  [[nodiscard]] std::string_view view() const noexcept { return view_; }

 private:
  std::unique_ptr<char[]> bytes_;
  std::string_view view_;
};

}  // namespace orvanta::strings
