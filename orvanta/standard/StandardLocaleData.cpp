#include <utility>

#include <orvanta/standard/LanguageDirections.h>
#include <orvanta/standard/LowerCase.h>
#include <orvanta/standard/StandardLocaleData.h>

namespace orvanta::standard {

namespace {

class StandardLocaleData final : public platform::LocaleData {
 public:
  explicit StandardLocaleData(StringList deviceLanguages)
      : deviceLanguages_(std::move(deviceLanguages)) {}

  StringList preferredLanguages() const override { return deviceLanguages_; }

  platform::LanguageDirection characterDirectionForLanguage(const String& language) const override {
    return directionOfLanguage(language.view());
  }

  String lowercaseString(const String& text) const override {
    if (text.isAbsent()) {
      return {};
    }
    const std::string lower = lowerCased(text.view());
    return text.view() == lower ? text : String(lower);
  }

  std::shared_ptr<platform::Calendar> currentCalendar() const override {
    return std::make_shared<platform::Calendar>(
        "gregorian",
        platform::Locale(deviceLanguages_.empty() ? String() : deviceLanguages_.front()));
  }

 private:
  StringList deviceLanguages_;
};

}  // namespace

std::shared_ptr<platform::LocaleData> makeLocaleData(StringList deviceLanguages) {
  return std::make_shared<StandardLocaleData>(std::move(deviceLanguages));
}

}  // namespace orvanta::standard
