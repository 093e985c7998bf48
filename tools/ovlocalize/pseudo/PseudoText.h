#pragma once

#include <string>
#include <string_view>

namespace ovlocalize {

/// How a text is made foreign and stays legible.
enum class PseudoKind {
  kAccented,  ///< "Sign in %@" becomes "[Šîîĝñ îñ %@]": accents, 40 % longer, in brackets.
  kRightToLeft,  ///< Each word between U+200F U+202E and U+202C U+200F, which turn it round.
};

/// Whether an identifier has one of the regions that are set aside for pseudo-languages: XA for
/// accents, XB for right to left.
[[nodiscard]] bool isPseudoLanguage(std::string_view language);

/// The text in that kind. Placeholders, the syntax of a message, tags such as "<b>" and entities
/// such as "&amp;" stay as they are, and so do an empty text and one that is an address.
[[nodiscard]] std::string pseudoText(std::string_view text, PseudoKind kind);

}  // namespace ovlocalize
