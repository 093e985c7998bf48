#pragma once

#include <orvanta/text/StringsPayload.h>

#include "Json.h"

namespace ovlocalize {

/// The payload that a JSON value is: strings and objects become texts and dictionaries. Everything
/// else, and what is nested deeper than any payload is, becomes nothing.
[[nodiscard]] orvanta::StringsPayload payloadFromJson(const Json& json);

}  // namespace ovlocalize
