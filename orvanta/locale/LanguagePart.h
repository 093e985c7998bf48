#pragma once

#include <concepts>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// The language of an identifier: "en" of "en-GB", "zh" of "zh-Hant-TW", "" of "-GB".
///
/// An identifier of fewer than 3 UTF-16 code units is given back whole, even when it holds a
/// hyphen. Only "-" separates; nothing is trimmed. The result is a view into `identifier`.
[[nodiscard]] ORVANTA_EXPORT std::string_view languagePart(
    std::string_view identifier ORVANTA_LIFETIME_BOUND) noexcept;

/// The same on handles, without a copy: absent gives absent, and an identifier that is a language
/// already is given back as the very same object.
template <std::same_as<String> Identifier>
[[nodiscard]] String languagePart(const Identifier& identifier) noexcept {
  return identifier.part(languagePart(identifier.view()));
}

}  // namespace orvanta
