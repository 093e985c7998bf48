#pragma once

#include <orvanta/Export.h>
#include <orvanta/text/Dictionary.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// From a requested identifier to the one that is tried instead.
using FallbackTable = Dictionary<String>;

/// The built-in table. No value is itself a key, so that one step is final.
[[nodiscard]] ORVANTA_EXPORT FallbackTable makeFallbackTable();

}  // namespace orvanta
