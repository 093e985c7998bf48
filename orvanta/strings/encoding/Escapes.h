#pragma once

#include <cstddef>
#include <string_view>

namespace orvanta::strings {

/// What `resolveEscapes` wrote.
struct ResolvedText {
  char* end;
  bool hasLoneSurrogate;
};

/// Writes the text of a quoted string with its escape sequences resolved. It is never longer than
/// `raw`, the text between the quotes.
///
///     \n \t \r \a \b \f \v    the control character
///     \U0041                  the UTF-16 unit with this number, of up to four digits; none is NUL
///     \101                    the character with this octal number in the NeXTSTEP set
///     \ and anything else     that, so \" \' \\ and a line break too
///
/// A pair of surrogates makes one character; a lone surrogate gives U+FFFD.
ResolvedText resolveEscapes(std::string_view raw, char* out) noexcept;

/// Whether a backslash and `c` begin an escape by number, \U or octal, which can stand for any
/// character.
[[nodiscard]] bool isNumericEscape(char c) noexcept;

/// Whether a backslash and `c` stand for `c` itself.
[[nodiscard]] bool isEscapeForItself(char c) noexcept;

}  // namespace orvanta::strings
