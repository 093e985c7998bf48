#include <algorithm>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/messages/plural/PluralRules.h>

namespace orvanta {

namespace {

const PluralRow* rowOf(std::string_view locale) noexcept {
  const auto table = pluralTable();
  const auto row = std::lower_bound(table.begin(), table.end(), locale,
                                    [](const PluralRow& candidate, std::string_view wanted) {
                                      return candidate.locale < wanted;
                                    });
  return row != table.end() && row->locale == locale ? &*row : nullptr;
}

}  // namespace

const PluralRow& pluralRulesForLocale(std::string_view locale) noexcept {
  static constexpr PluralRule kAlwaysOther = [](const PluralOperands& /*operands*/) {
    return PluralCategory::other;
  };
  static constexpr PluralRow kNoRules = {{}, kAlwaysOther, kAlwaysOther};
  const PluralRow* row = rowOf(locale);
  if (row == nullptr) {
    row = rowOf(languagePart(locale));
  }
  return row == nullptr ? kNoRules : *row;
}

PluralCategory categoryOf(const PlainNumber& number, PluralRule rule) noexcept {
  return number.isFinite() ? rule(PluralOperands::of(number.text())) : PluralCategory::other;
}

std::string_view keywordOf(PluralCategory category) noexcept {
  static constexpr std::string_view kKeywords[] = {"zero", "one", "two", "few", "many", "other"};
  return kKeywords[static_cast<std::size_t>(category)];
}

}  // namespace orvanta
