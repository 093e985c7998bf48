#pragma once

#include <string>
#include <string_view>

namespace orvanta::strings {

/// How a file writes its statements, for those that are added to it.
struct StatementStyle {
  bool isXml = false;
  std::string_view lineEnd = "\n";
  std::string indentation = {};  ///< What stands before the key of the last statement.
  bool hasPlainKeys = false;     ///< The last statement has a key without quotes.
};

/// A text as the inside of a string in such quotes, in escapes where that is necessary.
[[nodiscard]] std::string asQuoted(std::string_view text, char quote);

/// A text as character data. A carriage return, which would become a line feed, and control
/// characters are written as numeric references.
[[nodiscard]] std::string asXmlData(std::string_view text);

/// The lines of a statement and of its comment.
[[nodiscard]] std::string newStatement(const StatementStyle& style, std::string_view key,
                                       std::string_view value, std::string_view comment);

}  // namespace orvanta::strings
