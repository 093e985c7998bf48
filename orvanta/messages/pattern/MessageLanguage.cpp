#include <utility>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/messages/pattern/MessageLanguage.h>

namespace orvanta {

MessageLanguage::MessageLanguage(String locale, platform::LocaleData& data)
    : locale_(std::move(locale)),
      data_(&data),
      rules_(&pluralRulesForLocale(locale_.view())),
      direction_(data.characterDirectionForLanguage(languagePart(locale_))) {}

std::string MessageLanguage::written(const PlainNumber& number) const {
  return number.isFinite() ? data_->localizedNumber(number.text(), locale_)
                           : std::string(number.text());
}

}  // namespace orvanta
