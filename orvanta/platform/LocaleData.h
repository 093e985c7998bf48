#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/platform/Calendar.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta::platform {

/// The direction in which a language's lines run.
enum class LanguageDirection { unknown = 0, leftToRight = 1, rightToLeft = 2 };

/// What the platform knows about languages. Thread-safe.
class ORVANTA_EXPORT LocaleData {
 public:
  virtual ~LocaleData();
  LocaleData(const LocaleData&) = delete;
  LocaleData& operator=(const LocaleData&) = delete;

  /// The device's languages in order of preference, unfiltered; possibly none, never absent.
  [[nodiscard]] virtual StringList preferredLanguages() const = 0;

  /// The direction of a bare language code ("ar", not "ar-EG"); unknown for anything else.
  [[nodiscard]] virtual LanguageDirection characterDirectionForLanguage(
      const String& language) const = 0;

  /// `text` in lower case whatever the device's language is; absent for absent.
  [[nodiscard]] virtual String lowercaseString(const String& text) const = 0;

  /// A number as a person who reads the locale's language writes it. `plainDigits` are ASCII digits
  /// with an optional "-" in front and an optional "." in between; the result shows as many digits
  /// behind the point. Unless overridden, the plain digits themselves.
  [[nodiscard]] virtual std::string localizedNumber(std::string_view plainDigits,
                                                    const String& locale) const;

  /// The calendar that the device is set to: a new object at every call, which the caller may
  /// change. Never null.
  [[nodiscard]] virtual std::shared_ptr<Calendar> currentCalendar() const = 0;

 protected:
  LocaleData() = default;
};

}  // namespace orvanta::platform
