#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "TableInvariants.h"

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kOffsetSize = 2;
constexpr std::size_t kReferenceSize = 1;
constexpr std::size_t kMostObjects = 256;

void appendNumber(std::string& out, std::size_t value, std::size_t size) {
  for (std::size_t i = size; i-- > 0;) {
    out.push_back(i < sizeof value ? static_cast<char>(value >> (8 * i)) : '\0');
  }
}

// A sound frame around any bytes: an object begins at each of them, the first one is the top.
std::string framed(std::string_view objects) {
  const std::string_view held = objects.substr(0, (std::size_t{1} << 16) - kMagic.size());
  const std::size_t count = std::min(held.size(), kMostObjects);
  std::string file = std::string(kMagic).append(held);
  const std::size_t offsetsStart = file.size();
  for (std::size_t i = 0; i < count; ++i) {
    appendNumber(file, kMagic.size() + i, kOffsetSize);
  }
  file.append(6, '\0');
  appendNumber(file, kOffsetSize, 1);
  appendNumber(file, kReferenceSize, 1);
  appendNumber(file, count, 8);
  appendNumber(file, 0, 8);
  appendNumber(file, offsetsStart, 8);
  return file;
}

}  // namespace

// A whole file, or else objects that a frame is put around: hardly any mutation keeps a frame
// sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  orvanta::fuzz::checkTable(input.starts_with(kMagic) ? std::string(input) : framed(input));
  return 0;
}
