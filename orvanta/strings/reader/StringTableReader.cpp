#include <array>
#include <new>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/xml/XmlTable.h>

namespace orvanta::strings {

namespace {

// A guess that is rarely too low: what is not used of it is never touched and given back.
std::size_t expectedArena(const EncodedText& text) noexcept {
  switch (text.encoding) {
    case TextEncoding::kUtf8:
      return text.bytes.size();
    case TextEncoding::kUtf16Little:
    case TextEncoding::kUtf16Big:
      return text.bytes.size() / 4 * 3;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      return text.bytes.size() / 2;
  }
  return 0;
}

// Enough to tell the form by, in UTF-8.
constexpr std::size_t kFirstBytes = 512;

bool isXml(EncodedText text) noexcept {
  std::array<char, kFirstBytes> first;
  const std::size_t size = Utf8Transcoder(text).transcode(first.data(), first.size());
  return looksLikeXmlTable({first.data(), size});
}

bool readInto(StringTableBuilder& table, std::string_view bytes, EncodedText text,
              const ProblemCollector& problems) {
  if (looksLikeBinaryTable(bytes)) {
    return readBinaryTable(bytes, table, problems);
  }
  if (isXml(text)) {
    return readXmlTable(WholeUtf8(text).view(), table, problems);
  }
  return readTextTable(text, table, problems);
}

}  // namespace

std::shared_ptr<const StringTable> readStringTable(std::string_view bytes,
                                                   const ProblemCollector& problems) {
  try {
    const EncodedText text = detectEncoding(bytes);
    StringTableBuilder table(expectedArena(text));
    return readInto(table, bytes, text, problems) ? table.build() : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace orvanta::strings
