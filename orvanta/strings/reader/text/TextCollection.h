#pragma once

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// How deep arrays and dictionaries may be nested to be passed over as one value.
inline constexpr int kDeepestCollection = 128;

/// Where a value that is no text ends, or how far it went before it proved to be none.
struct PassedCollection {
  const char* end;
  bool isClosed;
};

[[nodiscard]] inline bool beginsCollection(char c) noexcept {
  return c == '<' || c == '(' || c == '{';
}

/// Passes over the data, array or dictionary that opens at `open`.
///
///     <0fab 12>    <*I5>    (a, "b", (c))    {a = b; c = (d);}
///
/// One that is damaged inside is passed over by its brackets. Then a string that does not end in
/// its line counts as a mere quote, and an array that holds a "=" lacks its end.
[[nodiscard]] PassedCollection passOverCollection(TextScanner& scanner, const char* open);

}  // namespace orvanta::strings
