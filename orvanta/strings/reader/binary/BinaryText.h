#pragma once

#include <cstddef>
#include <string>

#include <orvanta/strings/encoding/Utf8Repair.h>
#include <orvanta/strings/reader/binary/BinaryObjects.h>

namespace orvanta::strings {

/// A text of a binary property list, to be converted to UTF-8.
///
/// Units of UTF-16 that form no character give U+FFFD. The texts that the format calls ASCII are
/// read as UTF-8, which some writers put there; invalid bytes give U+FFFD.
class BinaryText {
 public:
  /// `text` must be a text whose file outlives this.
  explicit BinaryText(const BinaryObject& text) noexcept;

  /// A lower bound of its size in UTF-8, known without converting it.
  [[nodiscard]] static std::size_t leastSize(const BinaryObject& text) noexcept;

  /// An upper bound of what `decode` writes.
  [[nodiscard]] std::size_t room() const noexcept { return room_; }

  /// Writes the text into `room()` bytes, all of which may be overwritten, and gives its end.
  char* decode(char* out, Replacements& replacements) const noexcept;

  [[nodiscard]] std::string str() const;

 private:
  enum class Form { ascii, utf8, utf16 };

  std::string_view payload_;
  Form form_;
  std::size_t room_;
};

}  // namespace orvanta::strings
