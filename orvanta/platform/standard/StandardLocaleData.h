#pragma once

#include <memory>

#include <orvanta/platform/LocaleData.h>

namespace orvanta::platform::standard {

/// Locale data for a device that speaks `deviceLanguages`, best first.
[[nodiscard]] std::shared_ptr<LocaleData> makeLocaleData(StringList deviceLanguages);

}  // namespace orvanta::platform::standard
