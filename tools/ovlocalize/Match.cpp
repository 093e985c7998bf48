#include <iostream>

#include "Answering.h"
#include "Json.h"

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
  std::cout << "requested   " << requested << '\n'
            << "matched     " << matched << '\n'
            << "in use      " << localizer.preferredLocales() << '\n'
            << "direction   "
            << (localizer.rightToLeftOrientation() ? "right to left" : "left to right") << '\n';
  return 0;
}

}  // namespace ovlocalize
