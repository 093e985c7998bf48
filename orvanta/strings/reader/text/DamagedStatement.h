#pragma once

#include <vector>

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// Something between the tokens of a statement that does not belong there, to be reported.
struct Stray {
  const char* at;
  const char* message;
};

/// A damaged statement: those of its parts that could be read.
struct DamagedStatement {
  const char* begin = nullptr;
  TextToken key = {};
  const char* sign = nullptr;      ///< What follows the key; null without a key.
  const char* value = nullptr;     ///< What follows "="; null without one.
  TextToken valueToken = {};       ///< The value up to the next quote; none for a collection.
  const char* end = nullptr;       ///< Behind the semicolon; null unless all parts are there.
  const char* readTo = nullptr;    ///< How far the text was read.
  std::vector<Stray> strays = {};  ///< In the order of the text.
};

/// Reads the parts of the statement at `at`. Control characters and damaged comments between them
/// are passed over and listed.
[[nodiscard]] DamagedStatement readDamagedStatement(TextScanner& scanner, const char* at);

/// Skips white space, comments and strays; adds the strays to `strays`. Returns where it stopped.
[[nodiscard]] const char* skipIdleAndStrays(TextScanner& scanner, const char* at,
                                            std::vector<Stray>& strays);

}  // namespace orvanta::strings
