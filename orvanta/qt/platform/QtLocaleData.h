#pragma once

#include <memory>

#include <orvanta/platform/LocaleData.h>

namespace orvanta::qt {

/// What `other` knows about languages, with numbers as QLocale writes them: in the language's
/// digits, with its separators and its groups. A language that QLocale does not know gets plain
/// digits.
[[nodiscard]] std::shared_ptr<platform::LocaleData> makeQtLocaleData(
    std::shared_ptr<platform::LocaleData> other);

}  // namespace orvanta::qt
