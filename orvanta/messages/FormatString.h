#pragma once

#include <memory_resource>
#include <string>
#include <string_view>

#include <orvanta/messages/MessageArgument.h>
#include <orvanta/messages/pattern/MessageLanguage.h>

namespace orvanta {

/// Appends a text with its printf-style placeholders filled in, as `PlaceholderReader` finds them.
///
/// An argument of another kind than the conversion wants is shown as "%@" shows it: "d", "D", "i",
/// "u" and "U" want integers, "x", "X" and "o" integers in plain digits, "f" and "F" real numbers,
/// the others any argument. A placeholder without an argument stays as it is written. Texts are not
/// isolated.
void formatPlaceholders(std::string_view text, const MessageArguments& arguments,
                        const MessageLanguage& language, std::pmr::string& out);

}  // namespace orvanta
