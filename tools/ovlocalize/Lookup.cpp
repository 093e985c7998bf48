#include <iostream>

#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

int lookup(const Settings& settings, const Request& request, const std::vector<std::string>& keys) {
  installPlatform(settings);
  adopt(request);
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  Json array = Json::array();
  for (const std::string& key : keys) {
    const orvanta::String text = localizer.localizedStringForKey(key);
    if (settings.json) {
      array.push_back({{"key", key}, {"text", toJson(text)}});
    } else {
      std::cout << forOutput(text.str()) << '\n';
    }
  }
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  return 0;
}

}  // namespace ovlocalize
