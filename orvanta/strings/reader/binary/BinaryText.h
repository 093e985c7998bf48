#pragma once

#include <cstddef>
#include <string>

#include <orvanta/strings/reader/binary/BinaryObjects.h>

namespace orvanta::strings {

/// A text of a binary property list on its way to UTF-8.
///
/// Units of UTF-16 that form no character give U+FFFD. The texts that the format calls ASCII are
/// taken as UTF-8, which some writers put there; invalid bytes give U+FFFD.
class BinaryText {
 public:
  /// `text` must be one, and its file outlive this.
  explicit BinaryText(const BinaryObject& text) noexcept;

  /// Fewer bytes than this it never gives: what it costs, known before any work is done.
  [[nodiscard]] static std::size_t leastSize(const BinaryObject& text) noexcept;

  /// More bytes than this it never writes.
  [[nodiscard]] std::size_t room() const noexcept { return room_; }

  /// Writes it into `room()` bytes, all of which may be overwritten, and gives its end.
  char* decode(char* out) const noexcept;

  [[nodiscard]] std::string str() const;

 private:
  enum class Form { ascii, utf8, utf16 };

  std::string_view payload_;
  Form form_;
  std::size_t room_;
};

}  // namespace orvanta::strings
