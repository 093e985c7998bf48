#pragma once

#include <cstddef>

namespace orvanta::strings {

/// The line and the column of places in a UTF-8 text, which must be asked for in its order. Both
/// count from 1, columns in characters.
class LineCounter {
 public:
  explicit LineCounter(const char* begin) noexcept : counted_(begin) {}

  void countTo(const char* at) noexcept;

  [[nodiscard]] std::size_t line() const noexcept { return line_; }
  [[nodiscard]] std::size_t column() const noexcept { return column_; }

 private:
  const char* counted_;
  std::size_t line_ = 1;
  std::size_t column_ = 1;
};

}  // namespace orvanta::strings
