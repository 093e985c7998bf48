#pragma once

#include <memory_resource>
#include <string>
#include <string_view>

#include <orvanta/messages/MessageArgument.h>
#include <orvanta/messages/pattern/MessageLanguage.h>

namespace orvanta {

/// Appends a text with its printf-style placeholders filled in:
///
///     placeholder = "%%" | "%" (position "$")? "-"? "0"? width? ("." precision)? length?
///     conversion conversion  = "@" "s" "S" "c" "C" "e" "E" "g" "G" (any argument)
///                   "d" "D" "i" "u" "U" (integers)  "x" "X" "o" (integers, plain)
///                   "f" "F" (real numbers)
///
/// A placeholder takes the argument at its position, counted from 1, or else the next one. An
/// argument of another kind than the conversion wants is shown as "%@" shows it. A placeholder
/// without an argument stays as it is written, and so does everything else behind a "%": "100 % d"
/// holds no placeholder. Widths and precisions have two digits at most. Texts are not isolated.
void formatPlaceholders(std::string_view text, const MessageArguments& arguments,
                        const MessageLanguage& language, std::pmr::string& out);

}  // namespace orvanta
