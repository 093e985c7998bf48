#include "LanguageRequest.h"

namespace ovlocalize {

using orvanta::Localizer;
using orvanta::String;
using orvanta::StringList;

StringList adopt(const LanguageRequest& request) {
  Localizer& localizer = Localizer::sharedLocalizer();
  const std::vector<std::string>& locales = request.locales;
  const StringList requested =
      locales.empty() ? localizer.devicePreferredLocales()
                      : StringList(std::vector<String>(locales.begin(), locales.end()));
  localizer.updatePreferredLocales(requested,
                                   request.country ? String(*request.country) : String());
  return localizer.originalLocales();
}

void addLocales(CLI::App& command, LanguageRequest& request) {
  command
      .add_option("--locales", request.locales,
                  "The languages to look in, best first (default: the device's languages)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("a,b");
}

void addCountry(CLI::App& command, LanguageRequest& request) {
  command
      .add_option_function<std::string>(
          "--country", [&request](const std::string& country) { request.country = country; },
          "A country: each two-letter language is first tried with it (fr: fr-CA, then fr)")
      ->type_name("CC");
}

}  // namespace ovlocalize
