#include "Target.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvanta::fuzz::feed({reinterpret_cast<const char*>(data), size});
  return 0;
}
