#include <iostream>

#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

int match(const Settings& settings, const Request& request) {
  installPlatform(settings);
  const orvanta::StringList requested = adopt(request);
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  const orvanta::StringList matched = localizer.availableLocalesFromArray(requested);
  if (settings.json) {
    std::cout << printed({{"requested", toJson(requested)},
                          {"matched", toJson(matched)},
                          {"preferredLocales", toJson(localizer.preferredLocales())},
                          {"rightToLeft", localizer.rightToLeftOrientation()}})
              << '\n';
    return 0;
  }
  std::cout << "requested   " << oneLine(requested) << '\n'
            << "matched     " << oneLine(matched) << '\n'
            << "in use      " << oneLine(localizer.preferredLocales()) << '\n'
            << "direction   "
            << (localizer.rightToLeftOrientation() ? "right to left" : "left to right") << '\n';
  return 0;
}

}  // namespace ovlocalize
