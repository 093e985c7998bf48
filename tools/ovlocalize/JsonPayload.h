#pragma once

#include <string>

#include <orvanta/text/StringsPayload.h>

namespace ovlocalize {

/// The payloads in a JSON object from language to payload. Strings and objects become texts and
/// dictionaries; every other value, and what is nested deeper than any payload, is left out. Time
/// is linear in the text. `name` is what messages call the text; throws `Failure` when it is no
/// JSON object.
[[nodiscard]] orvanta::StringsPayload payloadFromJson(const std::string& json,
                                                      const std::string& name);

}  // namespace ovlocalize
