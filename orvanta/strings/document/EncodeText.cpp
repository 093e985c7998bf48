#include <cstddef>

#include <orvanta/strings/document/EncodeText.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

namespace {

void appendUnit(std::string& bytes, char32_t unit, std::size_t size, bool isBigEndian) {
  for (std::size_t index = 0; index < size; ++index) {
    const std::size_t byte = isBigEndian ? size - 1 - index : index;
    bytes += static_cast<char>((unit >> (8 * byte)) & 0xFF);
  }
}

void appendUtf16(std::string& bytes, char32_t character, bool isBigEndian) {
  if (character >= 0x10000) {
    appendUnit(bytes, 0xD800 + ((character - 0x10000) >> 10), 2, isBigEndian);
    character = 0xDC00 + ((character - 0x10000) & 0x3FF);
  }
  appendUnit(bytes, character, 2, isBigEndian);
}

void appendReference(std::string& bytes, char32_t character) {
  bytes += character < 0x80 ? std::string(1, static_cast<char>(character))
                            : "&#" + std::to_string(static_cast<unsigned>(character)) + ';';
}

}  // namespace

void appendEncoded(std::string& bytes, std::string_view utf8, TextEncoding encoding) {
  if (encoding == TextEncoding::kUtf8 || encoding == TextEncoding::kBrokenUtf8) {
    bytes += utf8;
    return;
  }
  while (!utf8.empty()) {
    const utf8::Decoded next = utf8::decode(utf8);
    utf8.remove_prefix(next.length);
    switch (encoding) {
      case TextEncoding::kUtf16Little:
      case TextEncoding::kUtf16Big:
        appendUtf16(bytes, next.codePoint, encoding == TextEncoding::kUtf16Big);
        break;
      case TextEncoding::kUtf32Little:
      case TextEncoding::kUtf32Big:
        appendUnit(bytes, next.codePoint, 4, encoding == TextEncoding::kUtf32Big);
        break;
      default:
        appendReference(bytes, next.codePoint);
    }
  }
}

}  // namespace orvanta::strings
