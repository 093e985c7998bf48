#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/text/LineCounter.h>

namespace orvanta::strings {

/// Reports problems with their lines and columns. The lines are counted only when a problem is
/// added, in one pass: problems must be added in the order of the text.
class TextProblems {
 public:
  /// `collector` must outlive this; it may be empty.
  TextProblems(const char* begin, const ProblemCollector& collector) noexcept
      : collector_(collector), counter_(begin) {}

  void add(const char* at, std::string_view message,
           TableProblem::Kind kind = TableProblem::Kind::statement);

  /// Adds what was damaged when `text` was converted to UTF-8. It is reported in the order of the
  /// text.
  void addDamage(const WholeUtf8& text);

  /// Reports the damage that is not yet reported.
  void finish();

  /// Whether anything was reported.
  [[nodiscard]] bool any() const noexcept { return any_; }

 private:
  struct Problem {
    const char* at;
    std::string message;
  };

  void report(const char* at, std::string_view message, TableProblem::Kind kind);

  const ProblemCollector& collector_;
  LineCounter counter_;
  bool any_ = false;
  std::vector<Problem> damage_;  // In the order of the text.
  std::size_t damageReported_ = 0;
};

}  // namespace orvanta::strings
