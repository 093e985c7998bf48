#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include <orvanta/text/String.h>

namespace orvanta {

/// A text that is not as the application's user should see it.
struct TextProblem {
  /// What is wrong.
  enum class Kind : std::uint8_t {
    shownInEnglish,    ///< The current language has no text under the key; English has.
    shownAsKey,        ///< No language has.
    malformedMessage,  ///< The text is no valid pattern; see `localizedMessageForKey`.
  };

  /// What is wrong.
  Kind kind = Kind::shownAsKey;
  /// As the look-up asked for it.
  String key;
  String locale;             ///< The current locale; of a malformed message that of its table.
  std::size_t position = 0;  ///< Of a malformed message: the byte at which it is wrong,
  std::string_view reason;   ///< and what is wrong, for people; static text.
};

using TextObserver = std::function<void(const TextProblem&)>;

/// Told of each problem; see `Localizer::setTextObserver`.
}  // namespace orvanta
