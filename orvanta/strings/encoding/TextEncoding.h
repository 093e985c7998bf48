#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include <orvanta/strings/encoding/Utf8Repair.h>

namespace orvanta::strings {

enum class TextEncoding {
  kUtf8,        ///< Valid.
  kBrokenUtf8,  ///< UTF-8 with invalid sequences.
  kUtf16Little,
  kUtf16Big,
  kUtf32Little,
  kUtf32Big,
  kLatin1,  ///< This and the next only where an XML document declares them.
  kWindows1252,
};

/// Bytes of text without the byte-order mark that they may have begun with.
struct EncodedText {
  TextEncoding encoding = TextEncoding::kUtf8;
  std::string_view bytes;
  bool hasMark = false;
};

/// Detects the encoding by the byte-order mark or, without one, by the zero bytes of the first
/// characters, which are ASCII in a strings file. Everything else is UTF-8, whose validity is
/// checked.
[[nodiscard]] EncodedText detectEncoding(std::string_view bytes) noexcept;

/// The same, without the check of UTF-8, from the beginning of a text: at least 64 bytes of it, or
/// all.
[[nodiscard]] EncodedText detectEncodingAtStart(std::string_view bytes) noexcept;

/// Converts text to UTF-8, piece by piece. What is no character (invalid UTF-8, a lone surrogate, a
/// byte that the encoding leaves undefined) becomes U+FFFD; a torn unit at the end is left out.
class Utf8Transcoder {
 public:
  /// The transcoder may stop with less room than this left, although there is more text.
  static constexpr std::size_t kSlack = 64;

  explicit Utf8Transcoder(EncodedText text) noexcept;

  [[nodiscard]] bool atEnd() const noexcept { return at_ == end_; }

  /// An upper bound of the room that the rest needs.
  [[nodiscard]] std::size_t roomForRest() const noexcept;

  /// Writes as much as fits into `out` and returns the number of bytes written. May overwrite all
  /// of `room`.
  std::size_t transcode(char* out, std::size_t room) noexcept;

  /// How many U+FFFD were written for invalid input.
  [[nodiscard]] std::size_t replacements() const noexcept { return replacements_; }

  /// The offset of the first of them in the output.
  [[nodiscard]] std::size_t firstReplacement() const noexcept { return firstReplacement_; }

  /// Whether the text ends within a code unit.
  [[nodiscard]] bool isTorn() const noexcept { return isTorn_; }

 private:
  TextEncoding encoding_;
  const char* at_;
  const char* end_;  // Of the last whole unit.
  bool isTorn_;
  std::size_t written_ = 0;
  std::size_t replacements_ = 0;
  std::size_t firstReplacement_ = 0;
};

/// All of a text as UTF-8, at once. Valid UTF-8 is not copied.
class WholeUtf8 {
 public:
  explicit WholeUtf8(EncodedText text);

  /// Valid as long as this object and the bytes that it was made from live.
  [[nodiscard]] std::string_view view() const noexcept { return view_; }

  /// Where characters were damaged, in UTF-8, and how many; absent when none were.
  struct Damage {
    std::size_t first;
    std::size_t count;
  };
  [[nodiscard]] const std::optional<Damage>& damage() const noexcept { return damage_; }

  /// Whether the last character was cut off and left out.
  [[nodiscard]] bool isTorn() const noexcept { return isTorn_; }

 private:
  std::unique_ptr<char[]> bytes_;
  std::string_view view_;
  std::optional<Damage> damage_;
  bool isTorn_ = false;
};

}  // namespace orvanta::strings
