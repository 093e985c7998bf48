#pragma once

#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <orvanta/locale/Localizer.h>

namespace ovlocalize {

/// The languages asked for, and the country to try them with.
struct LanguageRequest {
  std::vector<std::string> locales;  ///< Empty: what the device asks for.
  std::optional<std::string> country;
};

/// Adds the option --locales.
void addLocales(CLI::App& command, LanguageRequest& request);
/// Adds the option --country.
void addCountry(CLI::App& command, LanguageRequest& request);

/// Makes the shared localizer adopt the request, or the device's languages when it names none.
/// Returns the request after country expansion.
orvanta::StringList adopt(const LanguageRequest& request);

}  // namespace ovlocalize
