#pragma once

#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/MessageArgument.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// The message that the text under `key` makes of the arguments:
///
///     "cart.items" = "{count, plural, =0 {Nothing} one {# item} other {# items}} for {name}";
///     localizedMessageForKey("cart.items", {{"count", 3}, {"name", "Ada"}});
///
/// The syntax is that of ICU's MessageFormat: "{name}" and "{0}", "plural" with "offset:", "=N" and
/// CLDR's categories, "selectordinal", "select", "#", and apostrophes that quote. Types that format
/// by themselves, such as "{when, date}", are an error. Branches nest 32 deep at most. Plural rules
/// and digits are those of the language that the text comes from.
///
/// A text argument is never parsed. It stands between U+2068 and U+2069 where it may run in another
/// direction than the message. A missing argument stays visible as "{name}". A malformed text gives
/// way to the next language that has one, in the end to English, and is reported to the text
/// observer; if none is sound, the last one is given as it is written. A key that no language has
/// is itself the text, in English.
///
/// The result costs one allocation, unless it or its pattern is long.
[[nodiscard]] ORVANTA_EXPORT String localizedMessageForKey(Localizer& localizer,
                                                           std::string_view key,
                                                           const MessageArguments& arguments);

/// The text under `key` with its printf-style placeholders filled in from the arguments, by
/// position: "%@", "%d", "%1$@", "%.2f", "%%" and so on. A placeholder without an argument stays as
/// it is written; an argument of another kind than the placeholder wants is shown as "%@" shows it.
/// Names of arguments do not count, texts are not isolated.
[[nodiscard]] ORVANTA_EXPORT String localizedStringWithFormat(Localizer& localizer,
                                                              std::string_view key,
                                                              const MessageArguments& arguments);

/// The same of the shared localizer.
[[nodiscard]] inline String localizedMessageForKey(std::string_view key,
                                                   const MessageArguments& arguments) {
  return localizedMessageForKey(Localizer::sharedLocalizer(), key, arguments);
}
[[nodiscard]] inline String localizedStringWithFormat(std::string_view key,
                                                      const MessageArguments& arguments) {
  return localizedStringWithFormat(Localizer::sharedLocalizer(), key, arguments);
}

}  // namespace orvanta
