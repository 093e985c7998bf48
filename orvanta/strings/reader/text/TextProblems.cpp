#include <orvanta/strings/reader/text/TextProblems.h>

namespace orvanta::strings {

void TextProblems::add(const char* at, const char* message) {
  any_ = true;
  if (collector_) {
    countTo(at);
    collector_({line_, column_, message});
  }
}

// A line ends with LF, CR or both; of a character only the first byte counts.
void TextProblems::countTo(const char* at) noexcept {
  for (; counted_ < at; ++counted_) {
    const char c = *counted_;
    if (c == '\n' || (c == '\r' && (counted_ + 1 == at || counted_[1] != '\n'))) {
      ++line_;
      column_ = 1;
    } else if (c != '\r' && (static_cast<unsigned char>(c) & 0xC0) != 0x80) {
      ++column_;
    }
  }
}

}  // namespace orvanta::strings
