#pragma once

#include <orvanta/cache/OVStringCache.h>

#include "Json.h"
#include "Settings.h"

namespace ovlocalize {

/// Writes tables into the cache and prints what became of each language: a line, or JSON at the
/// end. Installs the platform of the settings. Throws `Failure` when a table could not be written.
void updateAndReport(const Settings& settings, const orvanta::StringsPayload& strings,
                     const std::string& namespaceName, const std::string& bundleName);

}  // namespace ovlocalize
