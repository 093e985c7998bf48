#pragma once

#include <string>
#include <string_view>

namespace ovlocalize {

/// A C++ identifier for a key: what is no ASCII letter or digit becomes "_", once for several in a
/// row and not at either end. "key_" goes before a digit, and before a keyword of C++. Empty where
/// nothing is left.
[[nodiscard]] std::string identifierFor(std::string_view key);

/// Whether this is one or more identifiers with "::" between them, none of them a keyword.
[[nodiscard]] bool isNamespace(std::string_view name);

/// A C++ string literal in ASCII of the text, whatever it holds.
[[nodiscard]] std::string literalFor(std::string_view text);

/// The text in one line of a comment: control characters escaped, those that change the
/// direction of text left out.
[[nodiscard]] std::string commentFor(std::string_view text);

}  // namespace ovlocalize
