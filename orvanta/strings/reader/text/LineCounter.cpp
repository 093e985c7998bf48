#include <orvanta/strings/reader/text/LineCounter.h>
#include <orvanta/strings/reader/text/TextCharacters.h>

namespace orvanta::strings {

// Of a character only the first byte counts. A line break that `at` cuts in two counts as far as it
// stands before `at`.
void LineCounter::countTo(const char* at) noexcept {
  while (counted_ < at) {
    const std::size_t lineBreak = lineBreakAt({counted_, at});
    if (lineBreak > 0) {
      counted_ += lineBreak;
      ++line_;
      column_ = 1;
    } else {
      column_ += (static_cast<unsigned char>(*counted_) & 0xC0) != 0x80 ? 1 : 0;
      ++counted_;
    }
  }
}

}  // namespace orvanta::strings
