#pragma once

#include <orvanta/text/String.h>

namespace orvanta {

/// The two sets of white space that identifiers are trimmed by. Both hold the tab and every
/// character of Unicode's general category Zs, the no-break spaces included, which `iswspace`
/// leaves out.
enum class CharacterSet {
  whitespace,            ///< No line breaks.
  whitespaceAndNewline,  ///< Also U+000A to U+000D, U+0085, U+2028 and U+2029.
};

/// `text` without the characters of `set` at both ends. The same object when nothing is removed,
/// else a copy, which throws `std::bad_alloc`; absent when `text` is absent. Invalid UTF-8 is never
/// removed.
[[nodiscard]] String stringByTrimming(const String& text, CharacterSet set);

}  // namespace orvanta
