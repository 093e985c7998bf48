#include <utility>

#include <orvanta/platform/standard/LanguageDirections.h>
#include <orvanta/platform/standard/LowerCase.h>
#include <orvanta/platform/standard/StandardLocaleData.h>

namespace orvanta::platform::standard {

namespace {

class StandardLocaleData final : public LocaleData {
 public:
  explicit StandardLocaleData(StringList deviceLanguages)
      : deviceLanguages_(std::move(deviceLanguages)) {}

  StringList preferredLanguages() override { return deviceLanguages_; }

  LanguageDirection characterDirectionForLanguage(const String& language) override {
    return directionOfLanguage(language.view());
  }

  String lowercaseString(const String& text) override {
    if (text.isAbsent()) {
      return {};
    }
    const std::string lower = lowerCased(text.view());
    return text.view() == lower ? text : String(lower);
  }

  std::shared_ptr<Calendar> currentCalendar() override {
    return std::make_shared<Calendar>(
        "gregorian", Locale(deviceLanguages_.empty() ? String() : deviceLanguages_.front()));
  }

 private:
  StringList deviceLanguages_;
};

}  // namespace

std::shared_ptr<LocaleData> makeLocaleData(StringList deviceLanguages) {
  return std::make_shared<StandardLocaleData>(std::move(deviceLanguages));
}

}  // namespace orvanta::platform::standard
