#pragma once

#include <orvanta/locale/Localizer.h>

#include "Commands.h"

namespace ovlocalize {

/// The list of handles for command-line words; absent when there are none.
[[nodiscard]] orvanta::StringList listOf(const std::vector<std::string>& words);

/// Makes the shared localizer adopt the request, or what the device asks for when it names no
/// locale. Returns the request after country expansion.
orvanta::StringList adopt(const Request& request);

}  // namespace ovlocalize
