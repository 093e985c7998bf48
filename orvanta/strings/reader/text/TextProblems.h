#pragma once

#include <cstddef>

#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// Hands problems over with their lines and columns, which are counted only when there are some,
/// and once: problems must be added in the order of the text.
class TextProblems {
 public:
  /// `collector` must outlive this; it may be empty.
  TextProblems(const char* begin, const ProblemCollector& collector) noexcept
      : collector_(collector), counted_(begin) {}

  void add(const char* at, const char* message);

  /// Whether anything was added.
  [[nodiscard]] bool any() const noexcept { return any_; }

 private:
  void countTo(const char* at) noexcept;

  const ProblemCollector& collector_;
  const char* counted_;
  std::size_t line_ = 1;
  std::size_t column_ = 1;
  bool any_ = false;
};

}  // namespace orvanta::strings
