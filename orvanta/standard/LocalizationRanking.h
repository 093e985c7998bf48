#pragma once

#include <orvanta/text/StringList.h>

namespace orvanta::standard {

/// The shipped languages that suit the device's, best first, each at most once.
///
/// Each device language takes the first of these that is shipped: its exact name; its name cut
/// short from the right, subtag by subtag, where Chinese without a script passes through the one
/// that its region writes ("zh-TW": "zh-Hant" before "zh"); any region or script of its language,
/// the first by name. With no match at all "en" if it is shipped, else none.
[[nodiscard]] StringList rankLocalizations(const StringList& shipped,
                                           const StringList& deviceLanguages);

}  // namespace orvanta::standard
