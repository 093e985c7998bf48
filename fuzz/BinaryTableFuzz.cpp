#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include <tests/support/BinaryList.h>

#include "TableInvariants.h"

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kMostObjects = 256;

// A sound frame around any bytes: an object begins at each of them, the first one is the top.
std::string framed(std::string_view objects) {
  const std::string_view held = objects.substr(0, (std::size_t{1} << 16) - kMagic.size());
  std::vector<std::size_t> offsets(std::min(held.size(), kMostObjects));
  std::iota(offsets.begin(), offsets.end(), kMagic.size());
  return orvanta::test::closeBinaryList(std::string(kMagic).append(held), offsets, 0, 2, 1);
}

}  // namespace

// A whole file, or else objects that a frame is put around: hardly any mutation keeps a frame
// sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  orvanta::fuzz::checkTable(input.starts_with(kMagic) ? std::string(input) : framed(input));
  return 0;
}
