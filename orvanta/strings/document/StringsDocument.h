#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// A text under its key, with the comment of its statement.
struct DocumentEntry {
  /// UTF-8.
  std::string key;
  /// UTF-8.
  std::string value;
  /// The comments directly before the statement and behind it in its line, without their marks and
  /// with a line feed between them; empty without any. A blank line separates a comment from the
  /// statement, as that of a file's head is.
  std::string comment;
};

struct DocumentContents;

/// A strings file with what a table drops: the order of its statements, their comments, and the
/// form. Texts can be replaced in it, and every other byte stays as it is.
///
/// It never changes; copies share it. Reading one from several threads is safe.
class ORVANTA_EXPORT StringsDocument {
 public:
  /// Reads a file in any of its forms. The entries are those that `readStringTable` finds, and
  /// problems are reported as there. Absent when the bytes hold nothing like a table. Throws
  /// `std::bad_alloc`, and what `problems` throws.
  [[nodiscard]] static std::optional<StringsDocument> read(std::string bytes,
                                                           const ProblemCollector& problems = {});

  /// One entry for each key, in the order of the statements that hold.
  [[nodiscard]] const std::vector<DocumentEntry>& entries() const noexcept;

  /// The file with these texts in it. Of a key that it holds the text alone is replaced, if it
  /// differs; the comment that is given does not count. New entries are appended in their order,
  /// with their comments. Of a key that is given twice the last text holds. Encoding, byte-order
  /// mark, line ends, keys with or without quotes and kinds of quotes stay as they are.
  ///
  /// A binary property list, which has neither order nor comments, becomes a text in UTF-8 as soon
  /// as one of its texts changes.
  ///
  /// Absent when the file cannot hold that: XML has no NUL character, or a `<dict/>` no end to
  /// append at; in a damaged file the change would change other entries, too. Time is linear.
  /// Throws `std::bad_alloc`.
  [[nodiscard]] std::optional<std::string> withTexts(const std::vector<DocumentEntry>& texts) const;

 private:
  class Rewriting;

  ORVANTA_HIDDEN explicit StringsDocument(
      std::shared_ptr<const DocumentContents> contents) noexcept;

  std::shared_ptr<const DocumentContents> contents_;
};

}  // namespace orvanta::strings
