#pragma once

#include <string_view>

#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/plural/PluralTable.h>

namespace orvanta {

/// The rules of a locale: those of its language and region together, else those of its language;
/// for a language without rules those by which everything is `other`.
[[nodiscard]] const PluralRow& pluralRulesForLocale(std::string_view locale) noexcept;

/// The category of a number by one of the rules; `other` for what is not finite.
[[nodiscard]] PluralCategory categoryOf(const PlainNumber& number, PluralRule rule) noexcept;

/// The word that stands for the category in a message: "few".
[[nodiscard]] std::string_view keywordOf(PluralCategory category) noexcept;

}  // namespace orvanta
