#include "Answering.h"

namespace ovlocalize {

using orvanta::Localizer;
using orvanta::String;
using orvanta::StringList;

StringList listOf(const std::vector<std::string>& words) {
  return words.empty() ? StringList() : StringList(std::vector<String>(words.begin(), words.end()));
}

StringList adopt(const Request& request) {
  Localizer& localizer = Localizer::sharedLocalizer();
  StringList requested = listOf(request.locales);
  if (requested.isAbsent()) {
    requested = localizer.devicePreferredLocales();
  }
  localizer.updatePreferredLocales(requested,
                                   request.country ? String(*request.country) : String());
  return localizer.originalLocales();
}

}  // namespace ovlocalize
