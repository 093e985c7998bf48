#pragma once

#include <string>

#include <CLI/CLI.hpp>

#include <orvanta/strings/document/StringsDocument.h>

#include "../Settings.h"

namespace ovlocalize {

/// The table that is exchanged with translators.
struct TableRequest {
  std::string language;
  std::string source = "en";
  std::string table = "Localizable";
};

/// Adds --language, --from and --table.
void addTableOptions(CLI::App& command, TableRequest& request);

/// The strings file of a language in the settings' bundle. Throws `Failure` without a bundle.
[[nodiscard]] std::string fileInBundle(const Settings& settings, const std::string& language,
                                       const std::string& table);

/// The file; an empty one where there is none, if that is allowed. Throws `Failure` when it cannot
/// be read or is no strings file.
enum class Missing { kRefused, kEmpty };
[[nodiscard]] orvanta::strings::StringsDocument documentIn(const std::string& file,
                                                           Missing missing);

}  // namespace ovlocalize
