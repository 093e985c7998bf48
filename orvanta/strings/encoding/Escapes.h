#pragma once

#include <cstddef>
#include <string_view>

namespace orvanta::strings {

/// The escape sequences of quoted strings:
///
///     \n \t \r \a \b \f \v    the control character
///     \U0041                  the UTF-16 unit with this number, of up to four digits; none is NUL
///     \101                    the character with this octal number in the NeXTSTEP set
///     \ and anything else     that, so \" \' \\ and a line break too
///
/// Two units that are a pair of surrogates make one character; a lone one gives U+FFFD.
struct ResolvedText {
  char* end;
  bool hasLoneSurrogate;
};

/// Writes the text that the inside of a quoted string stands for, which is never longer.
ResolvedText resolveEscapes(std::string_view raw, char* out) noexcept;

/// Whether an escape whose first character behind the backslash is `c` may stand for a character
/// that belongs to no control character and that is not `c` itself.
[[nodiscard]] bool isNumericEscape(char c) noexcept;

/// Whether an escape whose first character behind the backslash is `c` stands for `c` itself.
[[nodiscard]] bool isEscapeForItself(char c) noexcept;

}  // namespace orvanta::strings
