#include "LanguageRequest.h"

namespace ovlocalize {

using orvanta::Localizer;
using orvanta::String;
using orvanta::StringList;

StringList adopt(const Request& request) {
  Localizer& localizer = Localizer::sharedLocalizer();
  const std::vector<std::string>& locales = request.locales;
  const StringList requested =
      locales.empty() ? localizer.devicePreferredLocales()
                      : StringList(std::vector<String>(locales.begin(), locales.end()));
  localizer.updatePreferredLocales(requested,
                                   request.country ? String(*request.country) : String());
  return localizer.originalLocales();
}

}  // namespace ovlocalize
