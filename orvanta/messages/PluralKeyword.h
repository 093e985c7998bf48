#pragma once

#include <cstdint>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/messages/MessageArgument.h>

namespace orvanta {

/// Which plural rules of a language are meant.
enum class PluralType : std::uint8_t {
  cardinal,  ///< "3 files": a message's `plural`.
  ordinal,   ///< "the 3rd file": a message's `selectordinal`.
};

/// The keyword of the branch that a message in this language takes for the number: "zero", "one",
/// "two", "few", "many" or "other", by CLDR. The rules are those of the language and region
/// together, else of the language; "other" for a language without rules, and for what is no number.
/// The text is static.
[[nodiscard]] ORVANTA_EXPORT std::string_view pluralKeyword(std::string_view locale,
                                                            const MessageValue& number,
                                                            PluralType type = PluralType::cardinal);

}  // namespace orvanta
