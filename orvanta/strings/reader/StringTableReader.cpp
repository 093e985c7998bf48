
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/xml/XmlTable.h>

namespace orvanta::strings {

namespace {

// An estimate that is rarely too low. Pages that are not used are never touched, and are given
// back.
std::size_t expectedArena(const EncodedText& text) noexcept {
  switch (text.encoding) {
    case TextEncoding::kUtf16Little:
    case TextEncoding::kUtf16Big:
      return text.bytes.size() / 4 * 3;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      return text.bytes.size() / 2;
    default:
      return text.bytes.size();
  }
}

std::shared_ptr<const StringTable> readText(EncodedText text, const ProblemCollector& problems,
                                            const StatementCollector& statements) {
  StringTableBuilder table(expectedArena(text));
  const bool isTable = looksLikeXmlTable(text) ? readXmlTable(text, table, problems, statements)
                                               : readTextTable(text, table, problems, statements);
  return isTable ? table.build() : nullptr;
}

std::shared_ptr<const StringTable> readBinary(std::string_view bytes,
                                              const ProblemCollector& problems,
                                              const StatementCollector& statements) {
  StringTableBuilder table(bytes.size());
  return readBinaryTable(bytes, table, problems, statements) ? table.build() : nullptr;
}

}  // namespace

std::shared_ptr<const StringTable> readStringTable(std::string_view bytes,
                                                   const ProblemCollector& problems,
                                                   const StatementCollector& statements) {
  return looksLikeBinaryTable(bytes) ? readBinary(bytes, problems, statements)
                                     : readText(detectEncoding(bytes), problems, statements);
}

}  // namespace orvanta::strings
