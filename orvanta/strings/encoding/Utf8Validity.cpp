#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/strings/encoding/avx2/Utf8Check.h>

// Whether a byte is valid depends on it and on the three bytes before it alone. The check has no
// branches, so that the compiler vectorizes it. A block of ASCII takes a faster path.

namespace orvanta::strings {

namespace {

using Byte = unsigned char;

constexpr std::size_t kBlock = 64;
constexpr std::size_t kLookBack = 3;

[[gnu::always_inline]] inline bool isAscii(const Byte* block) noexcept {
  std::array<std::uint64_t, kBlock / 8> words = {};
  std::memcpy(words.data(), block, sizeof words);
  std::uint64_t any = 0;
  for (const std::uint64_t word : words) {
    any |= word;
  }
  return (any & 0x8080808080808080) == 0;
}

// Whether a character that begins in the three bytes before `block` continues in it.
[[gnu::always_inline]] inline bool expectsContinuation(const Byte* block) noexcept {
  return block[-1] >= 0xC0 || block[-2] >= 0xE0 || block[-3] >= 0xF0;
}

// The three bytes before the block are taken for valid.
[[gnu::always_inline]] inline bool isValidBlock(const Byte* block) noexcept {
  Byte wrong = 0;
  for (std::ptrdiff_t index = 0; index < static_cast<std::ptrdiff_t>(kBlock); ++index) {
    const Byte byte = block[index];
    const Byte before = block[index - 1];
    const bool continues = (byte & 0xC0) == 0x80;
    const bool mustContinue =
        (before >= 0xC0) | (block[index - 2] >= 0xE0) | (block[index - 3] >= 0xF0);
    const bool overlong = ((byte & 0xFE) == 0xC0) | ((before == 0xE0) & (byte < 0xA0)) |
                          ((before == 0xF0) & (byte < 0x90));
    const bool surrogate = (before == 0xED) & (byte >= 0xA0);
    const bool beyond = (byte >= 0xF5) | ((before == 0xF4) & (byte >= 0x90));
    const bool isWrong = (continues != mustContinue) | overlong | surrogate | beyond;
    wrong |= static_cast<Byte>(isWrong);
  }
  return wrong == 0;
}

[[gnu::always_inline]] inline bool isSound(const Byte* block) noexcept {
  return isAscii(block) && !expectsContinuation(block) ? true : isValidBlock(block);
}

// Whether the bytes from `at` to `end`, a multiple of a block, are valid, given the three bytes
// before `at`. Of a character that begins before `end` and is invalid, the error may be found here
// or in the block behind `end`, so every block of a text has to be checked.
bool areValidBlocks(const Byte* at, const Byte* end) noexcept {
#ifdef ORVANTA_HAS_AVX2
  if (avx2::isAvailable()) {
    return avx2::areValidUtf8Blocks(at, end);
  }
#endif
  while (at != end && isSound(at)) {
    at += kBlock;
  }
  return at == end;
}

}  // namespace

bool isValidUtf8(std::string_view text) noexcept {
  // The first block has no bytes before it, and no character may continue behind the last one: both
  // are copied between zeros.
  std::array<Byte, kLookBack + kBlock> edge = {};
  const auto isValidEdge = [&] {
    const Byte* const block = edge.data() + kLookBack;
    return areValidBlocks(block, block + kBlock);
  };
  const auto* const begin = reinterpret_cast<const Byte*>(text.data());
  if (text.size() < kBlock) {
    std::copy_n(begin, text.size(), edge.data() + kLookBack);  // `begin` may be null.
    return isValidEdge();
  }
  std::memcpy(edge.data() + kLookBack, begin, kBlock);
  const std::size_t rest = text.size() % kBlock;
  const Byte* const last = begin + text.size() - rest;
  if (!isValidEdge() || !areValidBlocks(begin + kBlock, last)) {
    return false;
  }
  edge.fill(0);
  std::memcpy(edge.data(), last - kLookBack, kLookBack + rest);
  return isValidEdge();
}

}  // namespace orvanta::strings
