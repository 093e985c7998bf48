#pragma once

#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// A locale, named by its identifier; nothing is checked.
class ORVANTA_EXPORT Locale {
 public:
  Locale() noexcept = default;
  explicit Locale(String identifier) noexcept : identifier_(std::move(identifier)) {}
  [[nodiscard]] const String& localeIdentifier() const noexcept ORVANTA_LIFETIME_BOUND {
    return identifier_;
  }

 private:
  String identifier_;
};

/// A calendar: which one, and the locale in which it names days and months.
class ORVANTA_EXPORT Calendar {
 public:
  explicit Calendar(String identifier, Locale locale) noexcept
      : identifier_(std::move(identifier)), locale_(std::move(locale)) {}

  /// Which calendar, as CLDR names it ("gregorian").
  [[nodiscard]] const String& calendarIdentifier() const noexcept ORVANTA_LIFETIME_BOUND {
    return identifier_;
  }
  [[nodiscard]] const Locale& locale() const noexcept ORVANTA_LIFETIME_BOUND { return locale_; }
  void setLocale(Locale locale) noexcept { locale_ = std::move(locale); }

 private:
  String identifier_;
  Locale locale_;
};

}  // namespace orvanta::platform
