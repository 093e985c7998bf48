#include <chrono>
#include <exception>
#include <random>

#include <orvanta/text/TextHash.h>

namespace orvanta::hashing {

namespace {

// One step of the generator SplitMix64.
std::uint64_t nextWord(std::uint64_t& state) noexcept {
  state += kOddWord;
  std::uint64_t word = state;
  word = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9;
  word = (word ^ (word >> 27)) * 0x94D049BB133111EB;
  return word ^ (word >> 31);
}

bool fillSecrets() noexcept {
  auto state =
      static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  try {
    std::random_device device;
    state ^= (static_cast<std::uint64_t>(device()) << 32) ^ device();
  } catch (const std::exception&) {
    // No source of randomness: the clock alone, which still differs between runs.
  }
  for (std::uint64_t& word : secrets.words) {
    word = nextWord(state);
  }
  secrets.areDrawn.store(true, std::memory_order_release);
  return true;
}

}  // namespace

// Constant-initialised, because static initialisers may already compute hashes.
constinit Secrets secrets;

void drawSecrets() noexcept {
  [[maybe_unused]] static const bool areDrawn = fillSecrets();
}

std::uint64_t hashLong(const char* bytes, std::size_t size, const std::uint64_t* words) noexcept {
  std::uint64_t hash = size;
  for (; size > 64; size -= 16, bytes += 16) {
    hash = fold(load(bytes) ^ words[0], load(bytes + 8) ^ words[1] ^ hash);
  }
  return fold(hashMedium(bytes, size, words) ^ words[2], hash ^ words[3]);
}

}  // namespace orvanta::hashing
