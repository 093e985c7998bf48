#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "TableInvariants.h"

namespace {

constexpr std::string_view kDocumentBegin = "<plist><dict>";

bool isDocument(std::string_view input) {
  return input.starts_with("<?xml") || input.starts_with("<!") || input.starts_with("<plist");
}

}  // namespace

// Takes the input as a whole document or as the inside of a dictionary. Otherwise most mutations
// would only damage the frame.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  orvanta::fuzz::checkTable(isDocument(input) ? std::string(input)
                                              : std::string(kDocumentBegin).append(input));
  return 0;
}
