#pragma once

#include <orvanta/platform/StringList.h>
#include <orvanta/platform/standard/Environment.h>

namespace orvanta::platform::standard {

/// The languages that the environment asks for, best first, each once, as hyphenated identifiers
/// ("pt-BR", "sr-Latn-RS"); possibly none.
///
/// The list in `LANGUAGE` comes first, then the locale that is in force: the first of `LC_ALL`,
/// `LC_MESSAGES` and `LANG` that is not empty. The locales C and POSIX name no language; where one
/// of them is in force, `LANGUAGE` says nothing either, as for gettext.
[[nodiscard]] StringList deviceLanguagesOf(const Environment& environment);

}  // namespace orvanta::platform::standard
