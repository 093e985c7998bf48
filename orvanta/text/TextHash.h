#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

namespace hashing {

/// Random numbers of this process, drawn before the first hash: nobody can choose texts whose
/// hashes collide.
struct Secrets {
  std::atomic<bool> areDrawn{false};
  std::uint64_t words[8] = {};
};
extern ORVANTA_EXPORT Secrets secrets;
/// Fills `secrets`. Thread-safe; later calls do nothing.
ORVANTA_EXPORT void drawSecrets() noexcept;

template <typename Word = std::uint64_t>
std::uint64_t load(const char* bytes) noexcept {
  Word word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// The high and the low half of the 128-bit product, from four products of 32-bit halves.
constexpr std::pair<std::uint64_t, std::uint64_t> multiplyByHalves(std::uint64_t a,
                                                                   std::uint64_t b) noexcept {
  constexpr std::uint64_t kLowHalf = 0xFFFFFFFF;
  const std::uint64_t low = (a & kLowHalf) * (b & kLowHalf);
  // Neither sum overflows: each adds two 32-bit numbers to a product of 32-bit factors.
  const std::uint64_t middle = (a >> 32) * (b & kLowHalf) + (low >> 32);
  const std::uint64_t otherMiddle = (a & kLowHalf) * (b >> 32) + (middle & kLowHalf);
  return {(a >> 32) * (b >> 32) + (middle >> 32) + (otherMiddle >> 32),
          (otherMiddle << 32) | (low & kLowHalf)};
}

// The 128-bit product, its halves combined by exclusive or: each bit of both factors affects every
// bit of the result.
constexpr std::uint64_t fold(std::uint64_t a, std::uint64_t b) noexcept {
#ifdef __SIZEOF_INT128__
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
#else
  const auto [high, low] = multiplyByHalves(a, b);
  return high ^ low;
#endif
}

inline std::uint64_t foldBlock(const char* block, const std::uint64_t* words) noexcept {
  return fold(load(block) ^ words[0], load(block + 8) ^ words[1]);
}

// 17 to 64 bytes, the length of most keys: four blocks of 16 bytes, overlapping as the length
// requires. Every such length takes the same steps, because a branch on a key's length is
// mispredicted. No step but the last depends on another.
inline std::uint64_t hashMedium(const char* bytes, std::size_t size,
                                const std::uint64_t* words) noexcept {
  const char* const last = bytes + size - 16;
  const std::size_t inner = size < 32 ? size - 16 : 16;
  return fold(foldBlock(bytes, words) + foldBlock(bytes + inner, words + 2) + size,
              foldBlock(last - inner, words + 4) + foldBlock(last, words + 6));
}

/// 2^64 divided by the golden ratio, made odd: multiples of it differ in all their bits.
inline constexpr std::uint64_t kOddWord = 0x9E3779B97F4A7C15;

// At most 16 bytes, as two words that may overlap: no loop over single bytes.
inline std::uint64_t hashShort(const char* bytes, std::size_t size,
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
  // The length is added to the product: added to a factor, it could cancel out a difference there.
  return fold(low ^ words[0], high ^ words[1]) + size * kOddWord;
}

/// More than 64 bytes.
ORVANTA_EXPORT std::uint64_t hashLong(const char* bytes, std::size_t size,
                                      const std::uint64_t* words) noexcept;

}  // namespace hashing

/// The hash of a text in this process. It differs from run to run, so that a downloaded table
/// cannot be crafted to make its keys collide; never store one. Thread-safe.
[[nodiscard]] inline std::uint64_t textHash(std::string_view text) noexcept {
  if (!hashing::secrets.areDrawn.load(std::memory_order_acquire)) [[unlikely]] {
    hashing::drawSecrets();
  }
  const std::uint64_t* const words = hashing::secrets.words;
  const std::size_t size = text.size();
  if (size > 16 && size <= 64) [[likely]] {
    return hashing::hashMedium(text.data(), size, words);
  }
  return size <= 16 ? hashing::hashShort(text.data(), size, words)
                    : hashing::hashLong(text.data(), size, words);
}

/// A key with its hash, computed once for look-ups in several tables. A view: the text must outlive
/// it. It cannot be absent: a view with null data is the empty key.
struct HashedKey {
  /// Views the key, which must live as long as this.
  explicit HashedKey(std::string_view key ORVANTA_LIFETIME_BOUND) noexcept
      : text(key.empty() ? std::string_view("") : key), hash(textHash(key)) {}

  std::string_view text;  ///< Its data is never null.
  /// Its `textHash`.
  std::uint64_t hash;
};

/// Hash and equality for a dictionary that is searched with a view of the key. An absent key and an
/// empty one are different keys with the same hash.
struct TextHash {
  /// Lets maps be asked with views.
  using is_transparent = void;
  /// The hash of the characters.
  std::size_t operator()(std::string_view text) const noexcept {
    return static_cast<std::size_t>(textHash(text));
  }
  /// The hash of the characters; that of the empty text for absent.
  std::size_t operator()(const String& text) const noexcept { return (*this)(text.view()); }
};

/// Equality to go with `TextHash`.
struct TextEqual {
  /// Lets maps be asked with views.
  using is_transparent = void;
  /// Absent equals only absent.
  bool operator()(const String& a, const String& b) const noexcept { return a == b; }
  /// False where `a` is absent.
  bool operator()(const String& a, std::string_view b) const noexcept { return a == b; }
  /// False where `b` is absent.
  bool operator()(std::string_view a, const String& b) const noexcept { return a == b; }
};

}  // namespace orvanta
