#include <algorithm>
#include <cstring>

#include <orvanta/strings/encoding/SingleByteCharacters.h>
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/encoding/Utf16ToUtf8.h>
#include <orvanta/strings/encoding/Utf8Validity.h>

namespace orvanta::strings {

namespace {

using namespace std::string_view_literals;

constexpr auto kLongest = static_cast<std::ptrdiff_t>(utf8::kLongest);

struct Mark {
  std::string_view bytes;
  TextEncoding encoding;
};

// The longer ones first: the mark of little-endian UTF-16 begins that of UTF-32.
constexpr Mark kMarks[] = {
    {"\xFF\xFE\0\0"sv, TextEncoding::kUtf32Little}, {"\0\0\xFE\xFF"sv, TextEncoding::kUtf32Big},
    {"\xEF\xBB\xBF"sv, TextEncoding::kUtf8},        {"\xFF\xFE"sv, TextEncoding::kUtf16Little},
    {"\xFE\xFF"sv, TextEncoding::kUtf16Big},
};

// How many of the first 16-bit units are ASCII characters, for each byte order.
struct AsciiUnits {
  std::size_t little = 0;
  std::size_t big = 0;
};

AsciiUnits countAsciiUnits(std::string_view bytes) noexcept {
  constexpr std::size_t kLookedAt = 64;
  const auto isAscii = [](char c) { return c != 0 && static_cast<unsigned char>(c) < 0x80; };
  AsciiUnits units;
  for (std::size_t at = 0; at + 1 < std::min(bytes.size(), kLookedAt); at += 2) {
    units.little += isAscii(bytes[at]) && bytes[at + 1] == 0 ? 1 : 0;
    units.big += bytes[at] == 0 && isAscii(bytes[at + 1]) ? 1 : 0;
  }
  return units;
}

// Whether the first two characters, or the only one, have their zero bytes where UTF-32 has them.
// One character is not enough in a longer text: a few NUL bytes may stand in front of UTF-8.
bool looksLikeUtf32(std::string_view bytes, bool isBig) noexcept {
  if (bytes.size() < 4) {
    return false;
  }
  for (std::size_t at = 0; at + 4 <= std::min<std::size_t>(bytes.size(), 8); at += 4) {
    const std::string_view unit = bytes.substr(at, 4);
    const bool isWide = isBig ? unit.starts_with("\0\0"sv) && unit.substr(2) != "\0\0"sv
                              : unit.ends_with("\0\0"sv) && unit.substr(0, 2) != "\0\0"sv;
    if (!isWide) {
      return false;
    }
  }
  const char first = bytes[isBig ? 3 : 0];
  return first != 0 && bytes[isBig ? 2 : 1] == 0;
}

std::optional<TextEncoding> wideEncodingWithoutMark(std::string_view bytes) noexcept {
  if (looksLikeUtf32(bytes, true)) {
    return TextEncoding::kUtf32Big;
  }
  if (looksLikeUtf32(bytes, false)) {
    return TextEncoding::kUtf32Little;
  }
  if (bytes.size() < 2 || (bytes[0] == 0) == (bytes[1] == 0)) {
    return std::nullopt;
  }
  // A single zero byte may be a NUL character of UTF-8. A file of two bytes cannot have more.
  const AsciiUnits units = countAsciiUnits(bytes);
  const std::size_t enough = bytes.size() < 4 ? 1 : 2;
  if (bytes[1] == 0 && units.little >= enough && units.little > units.big) {
    return TextEncoding::kUtf16Little;
  }
  if (bytes[0] == 0 && units.big >= enough && units.big > units.little) {
    return TextEncoding::kUtf16Big;
  }
  return std::nullopt;
}

std::size_t unitSize(TextEncoding encoding) noexcept {
  switch (encoding) {
    case TextEncoding::kUtf16Little:
    case TextEncoding::kUtf16Big:
      return 2;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      return 4;
    case TextEncoding::kUtf8:
    case TextEncoding::kBrokenUtf8:
    case TextEncoding::kLatin1:
    case TextEncoding::kWindows1252:
      break;
  }
  return 1;
}

bool isCharacter(char32_t codePoint) noexcept {
  return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

Transcoded utf32ToUtf8(const char* in, const char* inEnd, char* out, const char* outEnd,
                       bool bigEndian, Replacements& replacements) noexcept {
  for (; in != inEnd && outEnd - out >= kLongest; in += 4) {
    char32_t codePoint = 0;
    for (unsigned index = 0; index < 4; ++index) {
      const auto byte = static_cast<unsigned char>(in[bigEndian ? index : 3 - index]);
      codePoint = (codePoint << 8) | byte;
    }
    out = isCharacter(codePoint) ? utf8::encode(codePoint, out) : replacements.put(out);
  }
  return {in, out};
}

Transcoded singleBytesToUtf8(const char* in, const char* inEnd, char* out, const char* outEnd,
                             bool isLatin1, Replacements& replacements) noexcept {
  for (; in != inEnd && outEnd - out >= kLongest; ++in) {
    const auto byte = static_cast<unsigned char>(*in);
    const char32_t character = isLatin1 ? byte : windows1252Character(byte);
    out = character == utf8::kReplacement ? replacements.put(out) : utf8::encode(character, out);
  }
  return {in, out};
}

}  // namespace

EncodedText detectEncoding(std::string_view bytes) noexcept {
  EncodedText text = detectEncodingAtStart(bytes);
  if (text.encoding == TextEncoding::kUtf8 && !isValidUtf8(text.bytes)) {
    text.encoding = TextEncoding::kBrokenUtf8;
  }
  return text;
}

EncodedText detectEncodingAtStart(std::string_view bytes) noexcept {
  EncodedText text = {TextEncoding::kUtf8, bytes};
  const auto* const mark =
      std::find_if(std::begin(kMarks), std::end(kMarks),
                   [&](const Mark& candidate) { return bytes.starts_with(candidate.bytes); });
  if (mark != std::end(kMarks)) {
    text = {mark->encoding, bytes.substr(mark->bytes.size()), true};
  } else {
    text.encoding = wideEncodingWithoutMark(bytes).value_or(TextEncoding::kUtf8);
  }
  return text;
}

Utf8Transcoder::Utf8Transcoder(EncodedText text) noexcept
    : encoding_(text.encoding),
      at_(text.bytes.data()),
      end_(at_ + text.bytes.size() / unitSize(encoding_) * unitSize(encoding_)),
      isTorn_(text.bytes.size() % unitSize(encoding_) != 0) {}

std::size_t Utf8Transcoder::roomForRest() const noexcept {
  const auto left = static_cast<std::size_t>(end_ - at_);
  // A unit becomes at most three bytes; a unit of UTF-32, four.
  return kSlack + (unitSize(encoding_) == 4 ? left : 3 * left / unitSize(encoding_));
}

std::size_t Utf8Transcoder::transcode(char* out, std::size_t room) noexcept {
  static_assert(kSlack >= kUtf16Room && kSlack >= utf8::kLongest);
  char* outEnd = out + room;
  Transcoded stop = {at_, out};
  Replacements replacements;
  switch (encoding_) {
    case TextEncoding::kUtf8:
    case TextEncoding::kBrokenUtf8:
      stop = repairUtf8(at_, end_, out, outEnd, replacements);
      break;
    case TextEncoding::kUtf16Little:
      stop = utf16LittleToUtf8(at_, end_, out, outEnd, replacements);
      break;
    case TextEncoding::kUtf16Big:
      stop = utf16BigToUtf8(at_, end_, out, outEnd, replacements);
      break;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      stop =
          utf32ToUtf8(at_, end_, out, outEnd, encoding_ == TextEncoding::kUtf32Big, replacements);
      break;
    case TextEncoding::kLatin1:
    case TextEncoding::kWindows1252:
      stop = singleBytesToUtf8(at_, end_, out, outEnd, encoding_ == TextEncoding::kLatin1,
                               replacements);
      break;
  }
  if (replacements_ == 0 && replacements.count > 0) {
    firstReplacement_ = written_ + static_cast<std::size_t>(replacements.first - out);
  }
  replacements_ += replacements.count;
  at_ = stop.in;
  written_ += static_cast<std::size_t>(stop.out - out);
  return static_cast<std::size_t>(stop.out - out);
}

WholeUtf8::WholeUtf8(EncodedText text) {
  if (text.encoding == TextEncoding::kUtf8) {
    view_ = text.bytes;
    return;
  }
  Utf8Transcoder transcoder(text);
  std::size_t size = 0;
  // Repaired UTF-8 is rarely longer; when it is, the buffer is enlarged.
  std::size_t room = text.encoding == TextEncoding::kBrokenUtf8
                         ? text.bytes.size() + text.bytes.size() / 8 + Utf8Transcoder::kSlack
                         : transcoder.roomForRest();
  bytes_ = std::make_unique_for_overwrite<char[]>(room);
  for (;;) {
    size += transcoder.transcode(bytes_.get() + size, room - size);
    if (transcoder.atEnd()) {
      break;
    }
    room = size + transcoder.roomForRest();
    auto larger = std::make_unique_for_overwrite<char[]>(room);
    std::memcpy(larger.get(), bytes_.get(), size);
    bytes_ = std::move(larger);
  }
  view_ = {bytes_.get(), size};
  isTorn_ = transcoder.isTorn();
  if (transcoder.replacements() > 0) {
    damage_ = {transcoder.firstReplacement(), transcoder.replacements()};
  }
}

}  // namespace orvanta::strings
