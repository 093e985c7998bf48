#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <orvanta/strings/StringTable.h>

#include "Settings.h"

namespace ovlocalize {

/// The strings file of a language in the catalogue. Installs the platform of the settings first, if
/// none is installed yet. Throws `Failure` when there is none.
[[nodiscard]] std::string tableFileOf(const Settings& settings, const std::string& language);

/// The entries of that file; problems in it are passed over. Throws `Failure` when there is no
/// table.
[[nodiscard]] std::shared_ptr<const orvanta::strings::StringTable> tableOfLanguage(
    const Settings& settings, const std::string& language);

/// Whether the key is one of those that configure a language, which nobody translates.
[[nodiscard]] bool isConfigurationKey(std::string_view key);

}  // namespace ovlocalize
