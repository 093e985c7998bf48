#include <gtest/gtest.h>

#include <orvanta/text/Memory.h>

namespace orvanta {
namespace {

// Sizes below and above the threshold for huge pages, and sizes that are no multiple of a huge
// page.
TEST(Memory, OfAnySizeCanBeHadWrittenToAndResized) {
  constexpr std::size_t kMega = std::size_t{1} << 20;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, kMega - 1, kMega, 2 * kMega + 100,
                                 2 * kMega + kMega / 2 + 1}) {
    Bytes bytes(allocateBytes(size));
    ASSERT_NE(bytes, nullptr) << size;
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes.get()) % 64, 0U) << size;
    if (size > 0) {
      bytes[0] = 'a';
      bytes[size - 1] = 'z';
      bytes.reset(static_cast<char*>(std::realloc(bytes.release(), size + kMega)));
      ASSERT_NE(bytes, nullptr) << size;
      EXPECT_EQ(bytes[size - 1], 'z') << size;
    }
  }
  EXPECT_EQ(allocateBytes(SIZE_MAX), nullptr);
}

}  // namespace
}  // namespace orvanta
