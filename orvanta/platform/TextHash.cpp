#include <chrono>
#include <cstring>
#include <random>

#include <orvanta/platform/TextHash.h>

namespace orvanta {

namespace {

// Odd constants without structure (the fractional digits of pi).
constexpr std::uint64_t kFirst = 0x243F6A8885A308D3;
constexpr std::uint64_t kSecond = 0x13198A2E03707345;

std::uint64_t makeSeed() noexcept {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  std::uint64_t seed = static_cast<std::uint64_t>(now) * kFirst;
  try {
    std::random_device device;
    seed ^= (static_cast<std::uint64_t>(device()) << 32) ^ device();
  } catch (const std::exception&) {
    // No source of randomness: the clock alone still differs between runs.
  }
  return seed;
}

std::uint64_t load(const char* bytes, std::size_t count) noexcept {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, count);
  return word;
}

// The full product folded on itself: every bit of both factors reaches every bit of the result.
std::uint64_t fold(std::uint64_t a, std::uint64_t b) noexcept {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

}  // namespace

std::uint64_t textHash(std::string_view text) noexcept {
  static const std::uint64_t seed = makeSeed();
  const char* bytes = text.data();
  std::size_t left = text.size();
  std::uint64_t hash = seed ^ (left * kSecond);
  while (left > 16) {
    hash = fold(load(bytes, 8) ^ kFirst, load(bytes + 8, 8) ^ hash);
    bytes += 16;
    left -= 16;
  }
  std::uint64_t low = 0;
  std::uint64_t high = 0;
  if (left >= 8) {
    // The last 16 bytes or fewer as two words that may overlap: no loop over single bytes.
    low = load(bytes, 8);
    high = load(bytes + left - 8, 8);
  } else if (left > 0) {
    low = load(bytes, left);
  }
  return fold(low ^ kSecond, high ^ hash ^ kFirst);
}

}  // namespace orvanta
