
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/xml/XmlTable.h>

namespace orvanta::strings {

namespace {

std::shared_ptr<const StringTable> readText(EncodedText text, const ProblemCollector& problems,
                                            const StatementCollector& statements) {
  StringTableBuilder table(StringTableBuilder::Expected::inFile(text.bytes.size()));
  const bool isTable = looksLikeXmlTable(text) ? readXmlTable(text, table, problems, statements)
                                               : readTextTable(text, table, problems, statements);
  return isTable ? table.build() : nullptr;
}

std::shared_ptr<const StringTable> readBinary(std::string_view bytes,
                                              const ProblemCollector& problems,
                                              const StatementCollector& statements) {
  StringTableBuilder table(StringTableBuilder::Expected::inFile(bytes.size()));
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
