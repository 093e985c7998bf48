#include "data/Configuration.h"

#include <orvanta/locale/OVLocale.h>

namespace orvanta::bench {

Table makeConfiguration(const Language& language) {
  const std::string name(language.name);
  return {{std::string(OVOrvantaLanguageVersionKey), "17"},
          {std::string(OVOrvantaLanguageAppleIDKey), name},
          {std::string(OVOrvantaLanguageEquivalentsKey), name + "," + name + "-XX"}};
}

}  // namespace orvanta::bench
