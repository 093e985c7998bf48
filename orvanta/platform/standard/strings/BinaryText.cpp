#include <cstdint>
#include <cstring>

#include <orvanta/platform/Utf8.h>
#include <orvanta/platform/standard/strings/BinaryText.h>
#include <orvanta/platform/standard/strings/Utf16ToUtf8.h>

namespace orvanta::platform::standard {

namespace {

constexpr std::size_t kUtf16Unit = 2;
constexpr std::size_t kLongestOfUnit = 3;

// Made for short texts: most keys and values are.
bool isAscii(std::string_view bytes) noexcept {
  std::uint64_t seen = 0;
  std::uint64_t word = 0;
  for (; bytes.size() >= sizeof word; bytes.remove_prefix(sizeof word)) {
    std::memcpy(&word, bytes.data(), sizeof word);
    seen |= word;
  }
  word = 0;
  std::memcpy(&word, bytes.data(), bytes.size());
  return ((seen | word) & 0x8080808080808080) == 0;
}

}  // namespace

std::size_t BinaryText::leastSize(const BinaryObject& text) noexcept {
  return text.payload.size() / (text.kind == BinaryKind::kUtf16Text ? kUtf16Unit : 1);
}

std::string_view BinaryText::decode(const BinaryObject& text) {
  if (text.kind == BinaryKind::kUtf16Text) {
    return decodeUtf16(text.payload);
  }
  return isAscii(text.payload) ? text.payload : decodeUtf8(text.payload);
}

std::string_view BinaryText::decodeUtf16(std::string_view bigEndian) {
  const std::size_t room = bigEndian.size() / kUtf16Unit * kLongestOfUnit + kUtf16Room;
  if (decoded_.size() < room) {
    decoded_.resize(room);
  }
  char* const begin = decoded_.data();
  const char* const end = utf16BigToUtf8(bigEndian.data(), bigEndian.data() + bigEndian.size(),
                                         begin, begin + decoded_.size())
                              .out;
  return {begin, static_cast<std::size_t>(end - begin)};
}

std::string_view BinaryText::decodeUtf8(std::string_view utf8) {
  decoded_.clear();
  while (!utf8.empty()) {
    const utf8::Decoded next = utf8::decode(utf8);
    utf8::append(decoded_, next.codePoint);
    utf8.remove_prefix(next.length);
  }
  return decoded_;
}

}  // namespace orvanta::platform::standard
