#pragma once

#include <string_view>

#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/plural/PluralRules.h>
#include <orvanta/platform/LocaleData.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// How the language of a text inflects and writes numbers, and in which direction it runs.
class MessageLanguage {
 public:
  MessageLanguage(String locale, platform::LocaleData& data);

  [[nodiscard]] platform::LanguageDirection direction() const noexcept { return direction_; }

  [[nodiscard]] PluralCategory cardinalCategory(const PlainNumber& number) const noexcept {
    return categoryOf(number, rules_->cardinal);
  }
  [[nodiscard]] PluralCategory ordinalCategory(const PlainNumber& number) const noexcept {
    return categoryOf(number, rules_->ordinal);
  }

  /// The number in the digits and with the separators of the language.
  [[nodiscard]] std::string written(const PlainNumber& number) const;

 private:
  String locale_;
  platform::LocaleData* data_;
  const PluralRow* rules_;
  platform::LanguageDirection direction_;
};

}  // namespace orvanta
