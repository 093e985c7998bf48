#pragma once

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// The deepest nesting of arrays and dictionaries that is passed over as one value.
inline constexpr int kDeepestCollection = 128;

/// A value that is no text: where it ends or, when it is not closed, how far it was read.
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
/// When it is damaged inside, only its brackets are matched: a string that does not end in its line
/// counts as a single quote character, and an array that contains "=" as one without an end.
[[nodiscard]] PassedCollection passOverCollection(TextScanner& scanner, const char* open);

}  // namespace orvanta::strings
