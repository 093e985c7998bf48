#pragma once

#include <string_view>

#include <orvanta/platform/LocaleData.h>

namespace orvanta {

/// Whether `text` may run in another direction than a message of direction `message`, or move what
/// stands around it: it then has to be isolated. Decided by blocks of characters, so now and then
/// true where it need not be, but never the other way.
[[nodiscard]] bool mayDisturbDirection(std::string_view text,
                                       platform::LanguageDirection message) noexcept;

}  // namespace orvanta
