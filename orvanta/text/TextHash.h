#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

namespace hashing {

/// What sets the hashes of this process apart from those of any other: random, one for each word
/// that is hashed, so that nobody can choose text for which hashing goes wrong.
struct Secrets {
  std::atomic<bool> areDrawn{false};
  std::uint64_t words[8] = {};
};
extern ORVANTA_EXPORT Secrets secrets;
ORVANTA_EXPORT void drawSecrets() noexcept;

template <typename Word = std::uint64_t>
std::uint64_t load(const char* bytes) noexcept {
  Word word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

// The full product folded on itself: every bit of both factors reaches every bit of the result.
inline std::uint64_t fold(std::uint64_t a, std::uint64_t b) noexcept {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

inline std::uint64_t foldBlock(const char* block, const std::uint64_t* words) noexcept {
  return fold(load(block) ^ words[0], load(block + 8) ^ words[1]);
}

// 17 to 64 bytes, the length of most keys: four blocks of 16 that overlap as the length wants it.
// The same steps for every such length, because a branch on the length of a key is one that the
// processor cannot foresee; and no step but the last waits for another.
inline std::uint64_t ofUsual(const char* bytes, std::size_t size,
                             const std::uint64_t* words) noexcept {
  const char* const last = bytes + size - 16;
  const std::size_t inner = size < 32 ? size - 16 : 16;
  return fold(foldBlock(bytes, words) + foldBlock(bytes + inner, words + 2) + size,
              foldBlock(last - inner, words + 4) + foldBlock(last, words + 6));
}

// At most 16 bytes, as two words that may overlap: no loop over single bytes.
inline std::uint64_t ofShort(const char* bytes, std::size_t size,
                             const std::uint64_t* words) noexcept {
  std::uint64_t low = 0;
  std::uint64_t high = 0;
  if (size >= 8) {
    low = load(bytes);
    high = load(bytes + size - 8);
  } else if (size >= 4) {
    low = load<std::uint32_t>(bytes);
    high = load<std::uint32_t>(bytes + size - 4);
  } else if (size > 0) {
    low = load<std::uint8_t>(bytes) << 16 | load<std::uint8_t>(bytes + size / 2) << 8 |
          load<std::uint8_t>(bytes + size - 1);
  }
  return fold(low ^ words[0], (high ^ words[1]) + size);
}

/// More than 64 bytes.
ORVANTA_EXPORT std::uint64_t ofLong(const char* bytes, std::size_t size,
                                    const std::uint64_t* words) noexcept;

}  // namespace hashing

/// Hashes text for the tables of this process. The values differ from run to run, so that a
/// downloaded table cannot be crafted to make its keys collide; never store one.
[[nodiscard]] inline std::uint64_t textHash(std::string_view text) noexcept {
  if (!hashing::secrets.areDrawn.load(std::memory_order_acquire)) [[unlikely]] {
    hashing::drawSecrets();
  }
  const std::uint64_t* const words = hashing::secrets.words;
  const std::size_t size = text.size();
  if (size > 16 && size <= 64) [[likely]] {
    return hashing::ofUsual(text.data(), size, words);
  }
  return size <= 16 ? hashing::ofShort(text.data(), size, words)
                    : hashing::ofLong(text.data(), size, words);
}

/// A key with its hash, computed once however many tables are asked. A view: the text must outlive
/// it. An absent key is found nowhere.
struct HashedKey {
  explicit HashedKey(std::string_view key) noexcept
      : text(key.empty() ? std::string_view("") : key), hash(textHash(key)) {}

  std::string_view text;  ///< Its data is never null.
  std::uint64_t hash;
};

/// The hash and the equality that let a dictionary be asked with a view of the key.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept { return textHash(text); }
  std::size_t operator()(const String& text) const noexcept { return textHash(text.view()); }
};

struct TextEqual {
  using is_transparent = void;
  bool operator()(const String& a, const String& b) const noexcept { return a == b; }
  bool operator()(const String& a, std::string_view b) const noexcept { return a == b; }
  bool operator()(std::string_view a, const String& b) const noexcept { return b == a; }
};

}  // namespace orvanta
