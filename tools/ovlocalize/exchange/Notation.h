#pragma once

#include <string>
#include <string_view>

namespace ovlocalize {

// PO and XLIFF cannot hold every text. What they cannot hold is written as strings files do it:
//
//     \U0001    the character with this number: a control character, U+FFFE or U+FFFF
//     \U005C    the backslash of a text that would otherwise be read as this notation
//     \U        alone: the empty text, because both formats take no text for no translation

/// A line feed and a tab stay as they are in a text.
[[nodiscard]] std::string inNotation(std::string_view text);

/// The same for a key, in which they are written, too: an attribute cannot hold them.
[[nodiscard]] std::string keyInNotation(std::string_view key);

/// What is written for a line feed where it cannot stand.
inline constexpr std::string_view kLineFeedInNotation = "\\U000A";

/// The text or key that was written.
[[nodiscard]] std::string fromNotation(std::string_view written);

}  // namespace ovlocalize
