#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>

namespace orvanta {

/// A printf-style placeholder of a text, or the "%%" that stands for "%":
///
///     placeholder = "%%" | "%" (position "$")? "-"? "0"? width? ("." precision)? length?
///     conversion conversion  = "@" "s" "S" "c" "C" "d" "D" "i" "u" "U" "x" "X" "o" "f" "F" "e"
///                              "E" "g" "G"
///
/// Widths, precisions and positions have two digits at most. Everything else behind a "%" is text:
/// "100 % d" holds no placeholder.
struct Placeholder {
  std::size_t begin = 0;         ///< In the text, of the "%".
  std::size_t size = 0;          ///< With the "%".
  std::size_t argument = 0;      ///< Which argument it takes, counted from 0. Of a "%%": none.
  bool isPositioned = false;     ///< The text says which argument.
  bool isLeft = false;           ///< Padded behind the text.
  bool hasZeros = false;         ///< Padded with zeros.
  std::size_t width = 0;         ///< The fewest characters; 0 where the text names none.
  std::optional<int> precision;  ///< Digits behind the point.
  char conversion = '\0';        ///< Of a "%%": "%".

  /// Whether this is a "%%", which takes no argument.
  [[nodiscard]] bool isPercent() const noexcept { return conversion == '%'; }
};

/// Finds the placeholders of a text, as `localizedStringWithFormat` fills them in. One without a
/// position takes the next argument: how many with a position stand between does not count.
class ORVANTA_EXPORT PlaceholderReader {
 public:
  /// The text must outlive the reader.
  explicit PlaceholderReader(std::string_view text ORVANTA_LIFETIME_BOUND) noexcept : text_(text) {}

  /// The next placeholder; absent when there is none left. Time is linear in the text.
  [[nodiscard]] std::optional<Placeholder> next() noexcept;

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t following_ = 0;
};

}  // namespace orvanta
