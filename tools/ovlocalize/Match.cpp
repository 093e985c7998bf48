#include <iostream>
#include <memory>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

namespace {

int match(const Settings& settings, const LanguageRequest& request) {
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

}  // namespace

void addMatch(CommandLine& commands) {
  const auto request = std::make_shared<LanguageRequest>();
  CLI::App& command =
      commands.add("match", "Show which languages a request is matched with",
                   "  ovlocalize --bundle demo/bundle match --country CA fr en",
                   [request](const Settings& settings) { return match(settings, *request); });
  command
      .add_option("locales", request->locales,
                  "The languages asked for, best first (default: the device's languages)")
      ->type_name("LOCALE");
  addCountry(command, *request);
}

}  // namespace ovlocalize
