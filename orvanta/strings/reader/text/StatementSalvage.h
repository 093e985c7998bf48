#pragma once

#include <orvanta/strings/reader/text/DamagedStatement.h>
#include <orvanta/strings/reader/text/LookAheadBudget.h>

namespace orvanta::strings {

/// The message of a value that ends behind such a quote.
inline constexpr const char* kBareQuote =
    "a quote without a backslash inside a value; taken as text";

/// What could be recovered of a damaged statement.
struct Salvage {
  TextToken value;      ///< None when the statement is lost.
  const char* at;       ///< Where it is damaged,
  const char* message;  ///< and how.
};

/// Recovers what it can of a damaged statement that reaches to `end`, where the next one begins:
///
/// - a value with bare quotes inside: it ends at the first quote behind which only white space,
///   comments and at most one semicolon are left;
/// - a string that is never closed: it ends with its line;
/// - a value without its semicolon.
[[nodiscard]] Salvage salvage(TextScanner& scanner, LookAheadBudget& budget,
                              const DamagedStatement& statement, const char* end);

}  // namespace orvanta::strings
