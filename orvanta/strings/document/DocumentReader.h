#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <orvanta/strings/document/NewStatements.h>
#include <orvanta/strings/document/StringsDocument.h>
#include <orvanta/strings/encoding/TextEncoding.h>

namespace orvanta::strings {

/// What a new value replaces, as offsets into the bytes of the file.
struct ValuePlace {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::string before = {};  ///< Written before the new value,
  std::string behind = {};  ///< and behind it.
  char quote = '"';         ///< The value stands in such quotes; not in XML.
};

/// What a document knows of its file.
struct DocumentContents {
  std::string bytes;
  bool isBinary = false;  ///< Then all that follows but the entries is unused.
  TextEncoding encoding = TextEncoding::kUtf8;
  StatementStyle style;
  std::vector<DocumentEntry> entries;
  std::vector<ValuePlace> places;       ///< One for each entry, in the order of the file.
  std::optional<std::size_t> tableEnd;  ///< Where new statements are put, as an offset.
  bool endsInLine = false;              ///< Something stands before that in its line.
};

/// Fills in everything but the bytes, from those. False, with the reason reported, when they hold
/// nothing like a table.
[[nodiscard]] bool readDocument(DocumentContents& contents, const ProblemCollector& problems);

}  // namespace orvanta::strings
