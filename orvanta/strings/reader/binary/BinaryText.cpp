#include <cstdint>
#include <cstring>

#include <orvanta/strings/encoding/Utf16ToUtf8.h>
#include <orvanta/strings/reader/binary/BinaryText.h>

namespace orvanta::strings {

namespace {

constexpr std::size_t kUtf16Unit = 2;

// Fast for short texts, as most keys and values are.
bool isAscii(std::string_view bytes) noexcept {
  std::uint64_t seen = 0;
  std::uint64_t word = 0;
  if (bytes.size() < sizeof word) {
    for (const char byte : bytes) {
      seen |= static_cast<unsigned char>(byte);
    }
    return (seen & 0x80) == 0;
  }
  const char* const last = bytes.data() + bytes.size() - sizeof word;
  for (const char* at = bytes.data(); at < last; at += sizeof word) {
    std::memcpy(&word, at, sizeof word);
    seen |= word;
  }
  std::memcpy(&word, last, sizeof word);
  return ((seen | word) & 0x8080808080808080) == 0;
}

}  // namespace

BinaryText::BinaryText(const BinaryObject& text) noexcept
    : payload_(text.payload),
      form_(text.kind == BinaryKind::kUtf16Text ? Form::utf16
            : isAscii(text.payload)             ? Form::ascii
                                                : Form::utf8),
      // A unit becomes at most three bytes, as does an invalid byte.
      room_(form_ == Form::ascii  ? payload_.size()
            : form_ == Form::utf8 ? 3 * payload_.size() + utf8::kLongest
                                  : 3 * (payload_.size() / kUtf16Unit) + kUtf16Room) {}

std::size_t BinaryText::leastSize(const BinaryObject& text) noexcept {
  return text.payload.size() / (text.kind == BinaryKind::kUtf16Text ? kUtf16Unit : 1);
}

char* BinaryText::decode(char* out, Replacements& replacements) const noexcept {
  const char* const begin = payload_.data();
  const char* const end = begin + payload_.size();
  switch (form_) {
    case Form::ascii:
      std::memcpy(out, begin, payload_.size());
      return out + payload_.size();
    case Form::utf8:
      return repairUtf8(begin, end, out, out + room_, replacements).out;
    case Form::utf16:
      return utf16BigToUtf8(begin, end, out, out + room_, replacements).out;
  }
  return out;
}

std::string BinaryText::str() const {
  std::string text(room_, '\0');
  Replacements replacements;
  text.resize(static_cast<std::size_t>(decode(text.data(), replacements) - text.data()));
  return text;
}

}  // namespace orvanta::strings
