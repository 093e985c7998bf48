#pragma once

#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// A locale, named by its identifier, which is not checked. An ordinary value.
class ORVANTA_EXPORT Locale {
 public:
  /// With an absent identifier.
  Locale() noexcept = default;
  /// With an identifier that is kept as it is.
  explicit Locale(String identifier) noexcept : identifier_(std::move(identifier)) {}

  /// As it was given; absent when none was.
  [[nodiscard]] const String& localeIdentifier() const noexcept ORVANTA_LIFETIME_BOUND {
    return identifier_;
  }

 private:
  String identifier_;
};

/// A calendar: which one, and the locale in which it names days and months. An ordinary value:
/// unguarded.
class ORVANTA_EXPORT Calendar {
 public:
  /// Of a kind, in a locale; neither is checked.
  explicit Calendar(String identifier, Locale locale) noexcept
      : identifier_(std::move(identifier)), locale_(std::move(locale)) {}

  /// Which calendar, under its CLDR name ("gregorian").
  [[nodiscard]] const String& calendarIdentifier() const noexcept ORVANTA_LIFETIME_BOUND {
    return identifier_;
  }
  /// The locale of its names; valid until `setLocale`.
  [[nodiscard]] const Locale& locale() const noexcept ORVANTA_LIFETIME_BOUND { return locale_; }
  /// Names days and months in this locale from now on.
  void setLocale(Locale locale) noexcept { locale_ = std::move(locale); }

 private:
  String identifier_;
  Locale locale_;
};

}  // namespace orvanta::platform
