#include <algorithm>
#include <string>

#include <orvanta/platform/standard/strings/XmlProblems.h>

namespace orvanta::platform::standard {

namespace {

// Walks forward through a text. A line ends with LF, CR, or both in that order.
class TextPosition {
 public:
  explicit TextPosition(std::string_view utf8) : utf8_(utf8) {}

  void advanceTo(std::size_t offset) {
    for (; offset_ < offset; ++offset_) {
      const char byte = utf8_[offset_];
      if (byte == '\n' && offset_ > 0 && utf8_[offset_ - 1] == '\r') {
        continue;
      }
      if (byte == '\n' || byte == '\r') {
        ++line_;
        column_ = 1;
      } else if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80) {
        ++column_;
      }
    }
  }

  [[nodiscard]] std::size_t line() const noexcept { return line_; }
  [[nodiscard]] std::size_t column() const noexcept { return column_; }

 private:
  std::string_view utf8_;
  std::size_t offset_ = 0;
  std::size_t line_ = 1;
  std::size_t column_ = 1;
};

}  // namespace

void XmlProblems::add(std::size_t offset, std::string_view message) {
  if (collector_) {
    problems_.push_back({offset, message});
  }
}

void XmlProblems::handOver() {
  std::stable_sort(problems_.begin(), problems_.end(),
                   [](const Problem& a, const Problem& b) { return a.offset < b.offset; });
  TextPosition position(utf8_);
  for (const Problem& problem : problems_) {
    position.advanceTo(problem.offset);
    collector_({position.line(), position.column(), std::string(problem.message)});
  }
  problems_.clear();
}

}  // namespace orvanta::platform::standard
