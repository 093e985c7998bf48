#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include <orvanta/strings/writer/Utf16Writer.h>
#include <orvanta/text/Utf8.h>

// The hot loop of an update (benchmark row "update"): ASCII is widened eight characters at a time,
// and two- and three-byte characters are decoded inline. With a call of `utf8::decode` for each of
// them, tables in several scripts take three quarters more instructions.

namespace orvanta::strings {

namespace {

using Byte = unsigned char;

constexpr std::size_t kBlock = 8;
constexpr std::uint64_t kNotAscii = 0x8080808080808080;

// Where a conversion stopped.
struct Position {
  const char* in;  ///< Behind the last character converted; null when that is not valid UTF-8.
  char* out;       ///< Behind its UTF-16 form.
};

char* put(std::uint32_t unit, char* out) noexcept {
  out[0] = static_cast<char>(unit & 0xFF);
  out[1] = static_cast<char>(unit >> 8);
  return out + 2;
}

char* putCharacter(char32_t codePoint, char* out) noexcept {
  if (codePoint <= 0xFFFF) {
    return put(codePoint, out);
  }
  out = put(0xD800 + ((codePoint - 0x10000) >> 10), out);
  return put(0xDC00 + ((codePoint - 0x10000) & 0x3FF), out);
}

void widenBlock(const char* in, char* out) noexcept {
  std::array<Byte, kBlock> bytes = {};
  std::memcpy(bytes.data(), in, sizeof bytes);
  constexpr unsigned kShift = std::endian::native == std::endian::little ? 0 : 8;
  std::array<std::uint16_t, kBlock> units = {};
  for (std::size_t index = 0; index < kBlock; ++index) {
    units[index] = static_cast<std::uint16_t>(bytes[index] << kShift);
  }
  std::memcpy(out, units.data(), sizeof units);
}

// The number of ASCII bytes before the block's first non-ASCII byte. There must be one.
std::size_t leadingAscii(std::uint64_t block) noexcept {
  const std::uint64_t notAscii = block & kNotAscii;
  return static_cast<std::size_t>(std::endian::native == std::endian::little
                                      ? std::countr_zero(notAscii)
                                      : std::countl_zero(notAscii)) /
         8;
}

bool continues(Byte byte) noexcept {
  return (byte & 0xC0) == 0x80;
}

// Converts the character at `in`, which is not ASCII.
Position putNotAscii(const char* in, const char* inEnd, char* out) noexcept {
  const auto byte = [in](std::size_t index) { return static_cast<Byte>(in[index]); };
  const auto left = static_cast<std::size_t>(inEnd - in);
  if (left >= 2 && byte(0) >= 0xC2 && byte(0) < 0xE0 && continues(byte(1))) {
    return {in + 2, put((byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU), out)};
  }
  if (left >= 3 && (byte(0) & 0xF0) == 0xE0 && continues(byte(1)) && continues(byte(2))) {
    const std::uint32_t unit = (byte(0) & 0xFU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
    if (unit >= 0x800 && (unit & 0xF800) != 0xD800) {
      return {in + 3, put(unit, out)};
    }
  }
  const utf8::Decoded next = utf8::decode({in, left});
  return {next.valid ? in + next.length : nullptr, putCharacter(next.codePoint, out)};
}

// May write up to `2 * kBlock` bytes past the returned `out`.
Position utf8ToUtf16Little(const char* in, const char* inEnd, char* out) noexcept {
  while (in != nullptr && in != inEnd) {
    if (inEnd - in >= static_cast<std::ptrdiff_t>(kBlock)) {
      std::uint64_t block = 0;
      std::memcpy(&block, in, kBlock);
      widenBlock(in, out);
      const std::size_t count = (block & kNotAscii) == 0 ? kBlock : leadingAscii(block);
      in += count;
      out += 2 * count;
      if (count == kBlock) {
        continue;
      }
    }
    do {
      const Position next = static_cast<Byte>(*in) < 0x80
                                ? Position{in + 1, put(static_cast<Byte>(*in), out)}
                                : putNotAscii(in, inEnd, out);
      in = next.in;
      out = next.out;
    } while (in != nullptr && in != inEnd && static_cast<Byte>(*in) >= 0x80);
  }
  return {in, out};
}

// The number of bytes of an incomplete character at the end of `utf8`.
std::size_t incompleteBytes(std::string_view utf8) noexcept {
  for (std::size_t count = 1; count <= std::min<std::size_t>(utf8.size(), 3); ++count) {
    const auto byte = static_cast<Byte>(utf8[utf8.size() - count]);
    if (!continues(byte)) {
      const std::size_t length = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
      return count < length ? count : 0;
    }
  }
  return 0;
}

Status invalidUtf8() {
  return {EILSEQ, "the table is not valid UTF-8"_s};
}

}  // namespace

struct Utf16Writer::Buffers {
  static constexpr std::size_t kSize = std::size_t{32} * 1024;
  char utf8[kSize];
  char utf16[2 * kSize + 2 * kBlock];
};

Utf16Writer::Utf16Writer(ByteSink& file)
    : file_(file), buffers_(std::make_unique_for_overwrite<Buffers>()) {
  append("\uFEFF");
}

Utf16Writer::~Utf16Writer() = default;

void Utf16Writer::append(std::string_view utf8) {
  while (!utf8.empty()) {
    const std::size_t part = std::min(utf8.size(), Buffers::kSize - size_);
    std::memcpy(buffers_->utf8 + size_, utf8.data(), part);
    size_ += part;
    utf8.remove_prefix(part);
    if (size_ == Buffers::kSize) {
      flush();
    }
  }
}

void Utf16Writer::flush() {
  const std::size_t incomplete = incompleteBytes({buffers_->utf8, size_});
  const char* const end = buffers_->utf8 + size_ - incomplete;
  const Position stop = utf8ToUtf16Little(buffers_->utf8, end, buffers_->utf16);
  if (status_.ok()) {
    status_ =
        stop.in == nullptr
            ? invalidUtf8()
            : file_.write({buffers_->utf16, static_cast<std::size_t>(stop.out - buffers_->utf16)});
  }
  std::copy(end, end + incomplete, buffers_->utf8);
  size_ = incomplete;
}

Status Utf16Writer::finish() {
  flush();
  if (status_.ok() && size_ > 0) {
    status_ = invalidUtf8();
  }
  return status_;
}

}  // namespace orvanta::strings
