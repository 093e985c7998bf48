// A long text that repeats one piece, so that repeated look-ahead shows in the time per byte. The
// input is a beginning, the piece and an end.
#include <string>

#include "TableInvariants.h"
#include "Target.h"

void orvanta::fuzz::feed(std::string_view input) {
  constexpr std::size_t kSize = std::size_t{64} << 10;
  std::string text(takePiece(input));
  const std::string_view piece = takePiece(input);
  while (!piece.empty() && text.size() < kSize) {
    text += piece;
  }
  checkTable(text.append(input));
}
