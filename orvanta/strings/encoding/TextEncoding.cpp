#include <algorithm>
#include <cstddef>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/encoding/Utf16ToUtf8.h>
#include <orvanta/strings/encoding/Utf8Output.h>
#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

namespace {

using namespace std::string_view_literals;

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::ptrdiff_t kLongest = kLongestUtf8;

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

// How many of the first 16-bit units are ASCII in either byte order.
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

TextEncoding encodingWithoutMark(std::string_view bytes) noexcept {
  if (bytes.size() < 2 || (bytes[0] == 0) == (bytes[1] == 0)) {
    const bool isWideAscii = bytes.size() >= 4 && bytes.starts_with("\0\0\0"sv) && bytes[3] != 0;
    return isWideAscii ? TextEncoding::kUtf32Big : TextEncoding::kUtf8;
  }
  if (bytes[0] != 0 && bytes.size() >= 4 && bytes[2] == 0 && bytes[3] == 0) {
    return TextEncoding::kUtf32Little;
  }
  // A single zero byte may as well be a NUL within UTF-8; a file of two bytes cannot show more.
  const AsciiUnits units = countAsciiUnits(bytes);
  const std::size_t enough = bytes.size() < 4 ? 1 : 2;
  if (bytes[1] == 0 && units.little >= enough && units.little > units.big) {
    return TextEncoding::kUtf16Little;
  }
  if (bytes[0] == 0 && units.big >= enough && units.big > units.little) {
    return TextEncoding::kUtf16Big;
  }
  return TextEncoding::kUtf8;
}

Transcoded repairUtf8(const char* in, const char* inEnd, char* out, const char* outEnd) noexcept {
  while (in != inEnd && outEnd - out >= kLongest) {
    const utf8::Decoded next =
        utf8::decode({in, static_cast<std::size_t>(std::min(inEnd - in, kLongest))});
    out = putUtf8(next.codePoint, out);
    in += next.length;
  }
  return {in, out};
}

Transcoded utf32ToUtf8(const char* in, const char* inEnd, char* out, const char* outEnd,
                       bool bigEndian) noexcept {
  while (inEnd - in >= 4 && outEnd - out >= kLongest) {
    char32_t codePoint = 0;
    for (unsigned index = 0; index < 4; ++index) {
      const auto byte = static_cast<unsigned char>(in[bigEndian ? index : 3 - index]);
      codePoint = (codePoint << 8) | byte;
    }
    out = putUtf8(codePoint, out);
    in += 4;
  }
  if (in != inEnd && inEnd - in < 4 && outEnd - out >= kLongest) {
    return {inEnd, putUtf8(kReplacement, out)};
  }
  return {in, out};
}

}  // namespace

EncodedText detectEncoding(std::string_view bytes) noexcept {
  for (const Mark& mark : kMarks) {
    if (bytes.starts_with(mark.bytes)) {
      return {mark.encoding, bytes.substr(mark.bytes.size())};
    }
  }
  return {encodingWithoutMark(bytes), bytes};
}

std::size_t Utf8Transcoder::roomForRest() const noexcept {
  const auto left = static_cast<std::size_t>(end_ - at_);
  switch (encoding_) {
    case TextEncoding::kUtf8:
      return 3 * left + kSlack;
    case TextEncoding::kUtf16Little:
    case TextEncoding::kUtf16Big:
      return (left + 1) / 2 * 3 + kSlack;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      return left + kSlack;
  }
  return 0;
}

std::size_t Utf8Transcoder::transcode(char* out, std::size_t room) noexcept {
  static_assert(kSlack >= kUtf16Room && kSlack >= kLongestUtf8);
  char* outEnd = out + room;
  Transcoded stop = {at_, out};
  switch (encoding_) {
    case TextEncoding::kUtf8:
      stop = repairUtf8(at_, end_, out, outEnd);
      break;
    case TextEncoding::kUtf16Little:
      stop = utf16LittleToUtf8(at_, end_, out, outEnd);
      break;
    case TextEncoding::kUtf16Big:
      stop = utf16BigToUtf8(at_, end_, out, outEnd);
      break;
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
      stop = utf32ToUtf8(at_, end_, out, outEnd, encoding_ == TextEncoding::kUtf32Big);
      break;
  }
  at_ = stop.in;
  return static_cast<std::size_t>(stop.out - out);
}

WholeUtf8::WholeUtf8(EncodedText text) {
  if (text.encoding == TextEncoding::kUtf8 && isValidUtf8(text.bytes)) {
    view_ = text.bytes;
    return;
  }
  Utf8Transcoder transcoder(text);
  const std::size_t room = transcoder.roomForRest();
  bytes_ = std::make_unique_for_overwrite<char[]>(room);
  view_ = {bytes_.get(), transcoder.transcode(bytes_.get(), room)};
}

}  // namespace orvanta::strings
