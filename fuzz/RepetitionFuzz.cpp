// A long text that repeats one piece, so that repeated look-ahead shows in the time per byte. The
// input is a beginning, the piece and an end, each terminated by a byte that is invalid in UTF-8.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "TableInvariants.h"

namespace {

constexpr std::size_t kSize = std::size_t{64} << 10;

std::string_view takePiece(std::string_view& input) {
  constexpr char kEnd = '\xFF';
  const std::string_view piece = input.substr(0, input.find(kEnd));
  input.remove_prefix(std::min(piece.size() + 1, input.size()));
  return piece;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  std::string text(takePiece(input));
  const std::string_view piece = takePiece(input);
  while (!piece.empty() && text.size() < kSize) {
    text += piece;
  }
  orvanta::fuzz::checkTable(text.append(input));
  return 0;
}
