#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/PluralKeyword.h>
#include <orvanta/messages/plural/PluralRules.h>

namespace orvanta {

std::string_view pluralKeyword(std::string_view locale, const MessageValue& number,
                               PluralType type) {
  if (!number.isNumber()) {
    return keywordOf(PluralCategory::other);
  }
  const PlainNumber plain(number);
  const PluralRow& rules = pluralRulesForLocale(locale);
  return keywordOf(
      categoryOf(plain, type == PluralType::cardinal ? rules.cardinal : rules.ordinal));
}

}  // namespace orvanta
