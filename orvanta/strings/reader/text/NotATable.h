#pragma once

#include <string_view>

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// True when `text` begins with a tag, a comment, a declaration or an instruction of markup. A
/// stray "<" before a statement is none of them.
[[nodiscard]] bool beginsMarkup(std::string_view text) noexcept;

/// True when the text is a list, damaged or not.
///
///     ("a", {b = c;})
[[nodiscard]] bool beginsList(TextScanner& scanner);

/// True when the text begins as object notation does: "{", a quoted key, ":".
[[nodiscard]] bool beginsObjectNotation(TextScanner& scanner);

}  // namespace orvanta::strings
