#pragma once

#include <orvanta/locale/Localizer.h>

#include "Commands.h"

namespace ovlocalize {

/// Makes the shared localizer adopt the request, or the device's languages when it names none.
/// Returns the request after country expansion.
orvanta::StringList adopt(const Request& request);

}  // namespace ovlocalize
