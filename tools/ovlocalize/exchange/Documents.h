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

/// What `documentIn` does about a missing file: throws, or returns an empty document.
enum class Missing { kRefused, kEmpty };

/// The document of a strings file. Throws `Failure` when the file cannot be read or is not a
/// strings file.
[[nodiscard]] orvanta::strings::StringsDocument documentIn(const std::string& file,
                                                           Missing missing);

}  // namespace ovlocalize
