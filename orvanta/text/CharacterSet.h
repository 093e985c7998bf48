#pragma once

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// The two sets of white space that the rules trim by. Both hold tab and every character of
/// Unicode's general category Zs (the no-break spaces included, which `iswspace` leaves out).
enum class CharacterSet {
  whitespace,            ///< Line breaks are not in it.
  whitespaceAndNewline,  ///< Also U+000A to U+000D, U+0085, U+2028 and U+2029.
};

/// `text` without the characters of `set` at both ends. The same object when nothing is cut off;
/// absent when `text` is absent.
[[nodiscard]] ORVANTA_EXPORT String stringByTrimming(const String& text, CharacterSet set);

}  // namespace orvanta
