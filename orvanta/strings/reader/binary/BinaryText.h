#pragma once

#include <cstddef>
#include <string>

#include <orvanta/strings/encoding/Utf8Repair.h>
#include <orvanta/strings/reader/binary/BinaryObjects.h>

namespace orvanta::strings {

/// A text of a binary property list, to be converted to UTF-8.
///
/// Lone surrogates give U+FFFD. The texts that the format calls ASCII are read as UTF-8, because
/// some writers store UTF-8 there; invalid bytes give U+FFFD.
class BinaryText {
 public:
  /// `text` must be a text whose file outlives this.
  explicit BinaryText(const BinaryObject& text) noexcept;

  /// A lower bound of the text's size in UTF-8. Does not convert it.
  [[nodiscard]] static std::size_t leastSize(const BinaryObject& text) noexcept;

  /// An upper bound of the bytes that `decode` writes.
  [[nodiscard]] std::size_t room() const noexcept { return room_; }

  /// Writes the text and returns its end. May overwrite all of `room()` bytes.
  char* decode(char* out, Replacements& replacements) const noexcept;

  [[nodiscard]] std::string str() const;

 private:
  enum class Form { ascii, utf8, utf16 };

  std::string_view payload_;
  Form form_;
  std::size_t room_;
};

}  // namespace orvanta::strings
