#pragma once

#include <memory>

#include <orvanta/platform/LocaleData.h>

namespace orvanta::standard {

/// Locale data for a device that speaks `deviceLanguages`, best first.
[[nodiscard]] std::shared_ptr<platform::LocaleData> makeLocaleData(StringList deviceLanguages);

}  // namespace orvanta::standard
