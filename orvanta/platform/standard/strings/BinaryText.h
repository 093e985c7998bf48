#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <orvanta/platform/standard/strings/BinaryObjects.h>

namespace orvanta::platform::standard {

/// Turns the texts of a binary property list into UTF-8, one after the other.
///
/// Units of UTF-16 that form no character give U+FFFD. The texts that the format calls ASCII are
/// taken as UTF-8, which some writers put there; invalid bytes give U+FFFD.
class BinaryText {
 public:
  /// Fewer bytes than this the text never gives: what it costs, known before any work is done.
  [[nodiscard]] static std::size_t leastSize(const BinaryObject& text) noexcept;

  /// Valid until the next call, and as long as the file.
  [[nodiscard]] std::string_view decode(const BinaryObject& text);

 private:
  [[nodiscard]] std::string_view decodeUtf16(std::string_view bigEndian);
  [[nodiscard]] std::string_view decodeUtf8(std::string_view utf8);

  std::string decoded_;
};

}  // namespace orvanta::platform::standard
