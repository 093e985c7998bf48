#include <numeric>
#include <string>
#include <vector>

#include <tests/support/BinaryList.h>

#include "TableInvariants.h"
#include "Target.h"

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kMostObjects = 256;

// Adds a valid frame to any bytes: an object begins at each byte, the first one is the top object.
std::string framed(std::string_view objects) {
  const std::string_view held = objects.substr(0, (std::size_t{1} << 16) - kMagic.size());
  std::vector<std::size_t> offsets(std::min(held.size(), kMostObjects));
  std::iota(offsets.begin(), offsets.end(), kMagic.size());
  return orvanta::test::closeBinaryList(std::string(kMagic).append(held), offsets, 0, 2, 1);
}

}  // namespace

// Takes the input as a whole file or as objects without a frame, because hardly any mutation keeps
// a frame valid.
void orvanta::fuzz::feed(std::string_view input) {
  checkTable(input.starts_with(kMagic) ? std::string(input) : framed(input));
}
