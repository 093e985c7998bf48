#pragma once

#include <string_view>

#include <orvanta/platform/LocaleData.h>

namespace orvanta::standard {

/// The direction of the script that a language is mostly written in. `language` is a bare code of
/// two or three small letters; anything else is unknown.
[[nodiscard]] platform::LanguageDirection directionOfLanguage(std::string_view language) noexcept;

}  // namespace orvanta::standard
