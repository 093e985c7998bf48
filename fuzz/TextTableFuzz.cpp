#include <cstddef>
#include <cstdint>
#include <string_view>

#include "TableInvariants.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvanta::fuzz::checkTable({reinterpret_cast<const char*>(data), size});
  return 0;
}
