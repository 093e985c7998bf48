#include <algorithm>
#include <functional>
#include <random>
#include <unordered_set>

#include <gtest/gtest.h>

#include <orvanta/text/TextHash.h>

namespace orvanta {
namespace {

#ifdef __SIZEOF_INT128__
TEST(TextHash, MultipliesAlikeWithAndWithout128Bits) {
  __extension__ using Wide = unsigned __int128;
  const auto agree = [](std::uint64_t a, std::uint64_t b) {
    const auto [high, low] = hashing::multiplyByHalves(a, b);
    return ((static_cast<Wide>(high) << 64) | low) == static_cast<Wide>(a) * b;
  };
  std::mt19937_64 random(3);
  for (int round = 0; round < 64 * 64; ++round) {
    const std::uint64_t a = std::uint64_t{1} << (round % 64);
    const std::uint64_t b = ~std::uint64_t{0} << (round / 64);
    ASSERT_TRUE(agree(a, b) && agree(~std::uint64_t{0} >> (round % 64), b)) << a << " * " << b;
    const std::uint64_t c = random();
    const std::uint64_t d = random();
    ASSERT_TRUE(agree(c, d)) << c << " * " << d;
  }
}
#endif

// Texts of each length that differ in one byte, at each position, or only in their length.
void expectNoCollision(std::size_t longest) {
  std::unordered_set<std::uint64_t> hashes;
  std::size_t texts = 0;
  for (std::size_t length = 0; length <= longest; ++length) {
    std::string text(length, '\0');
    hashes.insert(textHash(text));
    ++texts;
    for (char& byte : text) {
      byte = 'x';
      hashes.insert(textHash(text));
      ++texts;
      byte = '\0';
    }
  }
  EXPECT_EQ(hashes.size(), texts);
}

// With the secrets of the process and with others. The secrets are restored, because existing
// tables depend on them.
TEST(TextHash, CollidesForNoSecrets) {
  expectNoCollision(200);
  std::uint64_t before[8];
  std::copy(std::begin(hashing::secrets.words), std::end(hashing::secrets.words), before);
  std::mt19937_64 random(5);
  for (int round = 0; round < 200; ++round) {
    SCOPED_TRACE(round);
    std::generate(std::begin(hashing::secrets.words), std::end(hashing::secrets.words),
                  std::ref(random));
    expectNoCollision(40);
  }
  std::copy(std::begin(before), std::end(before), hashing::secrets.words);
}

}  // namespace
}  // namespace orvanta
