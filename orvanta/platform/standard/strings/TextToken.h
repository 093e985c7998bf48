#pragma once

#include <string_view>

namespace orvanta::platform::standard {

/// A key or a value as it stands in the text, without its quotes.
///
///     "quoted, with \"escapes\""    'quoted'    letters_digits_and_$/:.-
struct TextToken {
  const char* begin = nullptr;  ///< Null when there is no token.
  const char* end = nullptr;
  const char* next = nullptr;  ///< Behind the closing quote.
  bool escapes = false;        ///< There are backslashes to be resolved.

  [[nodiscard]] bool found() const noexcept { return begin != nullptr; }
  [[nodiscard]] std::string_view text() const noexcept { return {begin, end}; }
};

[[nodiscard]] inline bool isQuote(char c) noexcept {
  return c == '"' || c == '\'';
}

/// The string whose opening quote stands at `open`; none when nothing closes it before `end`.
[[nodiscard]] TextToken readQuoted(const char* open, const char* end) noexcept;

/// The token at `at`, quoted or not; none where none begins, or a quote is not closed.
[[nodiscard]] TextToken readToken(const char* at, const char* end) noexcept;

/// Writes the text that a quoted string stands for and gives its end. It is never longer than
/// `raw`.
///
///     \n \t \r \a \b \f \v    the control character
///     \U0041                  the UTF-16 unit with this number, of one to four digits
///     \101                    the character with this octal number in the NeXTSTEP set
///     \ and anything else     that, so \" \' \\ and a line break too
char* resolveEscapes(std::string_view raw, char* out) noexcept;

}  // namespace orvanta::platform::standard
