#include <orvanta/strings/document/ByteOffsets.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

std::size_t ByteOffsets::at(std::size_t offset) noexcept {
  if (text_.encoding == TextEncoding::kUtf8) {
    return offset;
  }
  while (utf8At_ < offset) {
    passCharacter();
  }
  return byteAt_;
}

void ByteOffsets::passCharacter() noexcept {
  const std::size_t length = utf8::decode(utf8_.substr(utf8At_, utf8::kLongest)).length;
  utf8At_ += length;
  switch (text_.encoding) {
    case TextEncoding::kUtf8:
    case TextEncoding::kBrokenUtf8:
      // In `utf8_`, U+FFFD replaces each invalid sequence, whose length may differ.
      byteAt_ += utf8::decode(text_.bytes.substr(byteAt_, utf8::kLongest)).length;
      break;
    case TextEncoding::kUtf16Little:
    case TextEncoding::kUtf16Big:
      byteAt_ += length == utf8::kLongest ? 4 : 2;
      break;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      byteAt_ += 4;
      break;
    case TextEncoding::kLatin1:
    case TextEncoding::kWindows1252:
      ++byteAt_;
      break;
  }
}

}  // namespace orvanta::strings
