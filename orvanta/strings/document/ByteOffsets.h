#pragma once

#include <cstddef>
#include <string_view>

#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// Where the characters of a text stand in the bytes that it was converted from. Places must be
/// asked for in the order of the text.
class ByteOffsets {
 public:
  /// `utf8` is all of `text`, converted; both must outlive this.
  ByteOffsets(EncodedText text, std::string_view utf8) noexcept : text_(text), utf8_(utf8) {}

  /// The offset into the bytes, mark aside, of the character at `offset` in UTF-8.
  [[nodiscard]] std::size_t at(std::size_t offset) noexcept;

 private:
  void passCharacter() noexcept;

  EncodedText text_;
  std::string_view utf8_;
  std::size_t utf8At_ = 0;
  std::size_t byteAt_ = 0;
};

}  // namespace orvanta::strings
