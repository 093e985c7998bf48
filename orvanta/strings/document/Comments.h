#pragma once

#include <string>
#include <string_view>

#include <orvanta/strings/reader/text/TextScanner.h>

namespace orvanta::strings {

/// The comments between two statements, each with a line feed between its parts.
struct CommentsBetween {
  std::string ofPrevious;  ///< In the line in which the statement before them ends.
  std::string ofNext;      ///< Behind the last blank line.
};

/// Reads them between `from`, behind the value of a statement or at the beginning of the text, and
/// `to`. What is no comment, such as a damaged statement, separates as a blank line does.
[[nodiscard]] CommentsBetween commentsBetween(TextScanner& scanner, const char* from,
                                              const char* to);

/// The comments of an XML text.
[[nodiscard]] std::string xmlComments(std::string_view text);

/// The comment with its marks. Blanks are put into marks that it holds itself.
[[nodiscard]] std::string asComment(std::string_view comment);
[[nodiscard]] std::string asXmlComment(std::string_view comment);

}  // namespace orvanta::strings
