#include "Tables.h"

#include <orvanta/locale/Localizer.h>
#include <orvanta/strings/reader/StringTableReader.h>

#include "FileContents.h"

namespace ovlocalize {

std::string tableFileOf(const Settings& settings, const std::string& language) {
  installPlatform(settings);
  const auto bundle =
      orvanta::Localizer::sharedLocalizer().stringCache().bundleForLanguage(language);
  const orvanta::String path =
      bundle == nullptr ? orvanta::String() : bundle->pathForResource("Localizable", "strings");
  if (path.isAbsent()) {
    throw Failure("no table for the language " + language);
  }
  return path.str();
}

std::shared_ptr<const orvanta::strings::StringTable> tableOfLanguage(const Settings& settings,
                                                                     const std::string& language) {
  const std::string file = tableFileOf(settings, language);
  auto table = orvanta::strings::readStringTable(contentsOf(file));
  if (table == nullptr) {
    throw Failure(nameOf(file) + " is not a strings file");
  }
  return table;
}

bool isConfigurationKey(std::string_view key) {
  return key.starts_with("CONFIG-DO_NOT_TRANSLATE-");
}

}  // namespace ovlocalize
