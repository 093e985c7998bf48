#pragma once

#include <orvanta/text/URL.h>

namespace orvanta {

/// Removes an item, a folder with everything in it. A failure is logged and gives false.
bool removeItemLoggingFailure(const URL& item);

}  // namespace orvanta
