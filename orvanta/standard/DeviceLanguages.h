#pragma once

#include <orvanta/standard/Environment.h>
#include <orvanta/text/StringList.h>

namespace orvanta::standard {

/// The languages that the environment asks for, best first, each once, as hyphenated identifiers
/// ("pt-BR", "sr-Latn-RS"); possibly none.
///
/// The list in `LANGUAGE` comes first, then the locale that is in force: the first of `LC_ALL`,
/// `LC_MESSAGES` and `LANG` that is not empty. The locales C and POSIX name no language; where one
/// of them is in force, `LANGUAGE` says nothing either, as for gettext.
[[nodiscard]] StringList deviceLanguagesOf(const Environment& environment);

}  // namespace orvanta::standard
