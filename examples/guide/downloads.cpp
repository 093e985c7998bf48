// The code of docs/downloads.md. The arguments are a folder with tables, one for caches, and a
// file of downloaded tables.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include <nlohmann/json.hpp>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/StandardPlatform.h>

namespace {

// No payload is deeper than 32 levels; what lies below is not for the library.
orvanta::StringsPayload payloadFrom(const nlohmann::json& json, int levels = 32) {
  if (json.is_string()) {
    return orvanta::String(json.get_ref<const std::string&>());
  }
  orvanta::StringsPayload payload;
  if (json.is_object() && levels > 0) {
    for (const auto& [key, value] : json.items()) {
      payload.add(key, payloadFrom(value, levels - 1));
    }
  }
  return payload;
}

void store(const orvanta::StringsPayload& strings) {
  using Result = orvanta::StringsUpdate::Result;
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  orvanta::OVStringCache& cache = localizer.stringCache();
  cache.updateStrings(strings, /*namespaceName=*/"main", /*bundleName=*/"demo",
                      [](const orvanta::StringsUpdate& update) {
                        if (update.result == Result::failed) {
                          std::cerr << update.language << ": " << update.reason << '\n';
                        }
                      });
  localizer.updatePreferredLocales({"it"}, {});  // reads the new file
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    return EXIT_FAILURE;
  }
  orvanta::platform::Platform::install(
      orvanta::standard::makeStandardPlatform({.mainBundlePath = argv[1], .cachesPath = argv[2]}));
  std::ifstream file(argv[3]);
  store(payloadFrom(nlohmann::json::parse(file, nullptr, /*allow_exceptions=*/false)));
  std::cout << orvanta::Localizer::sharedLocalizer().localizedStringForKey("signin.title") << '\n';
}
