#pragma once

#include <memory_resource>
#include <span>
#include <string>
#include <string_view>

#include <orvanta/messages/MessageArgument.h>
#include <orvanta/messages/pattern/MessageLanguage.h>
#include <orvanta/messages/pattern/MessagePattern.h>

namespace orvanta {

/// Appends the message that a pattern, taken apart into `parts`, makes of the arguments.
///
/// A missing argument stays visible as "{name}". A text where the pattern wants a number takes the
/// branch `other` and stands for "#" itself. A plural is decided by the number as it is shown.
/// Texts are copied as they are, between U+2068 and U+2069 where `mayDisturbDirection`.
///
/// Time is linear in pattern and output; the output is at most the pattern and one argument for
/// each placeholder in it.
void formatMessage(std::string_view pattern, std::span<const PatternPart> parts,
                   const MessageArguments& arguments, const MessageLanguage& language,
                   std::pmr::string& out);

}  // namespace orvanta
