#pragma once

#include <cstddef>
#include <vector>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/text/TextProblems.h>

namespace orvanta::strings {

/// Reports problems of an XML text, by offset. A few may be added out of order before they are
/// handed over together.
class XmlProblems {
 public:
  /// Both must outlive this.
  XmlProblems(const WholeUtf8& text, const ProblemCollector& collector);

  /// `message` must live as long as this object.
  void add(std::size_t offset, const char* message,
           TableProblem::Kind kind = TableProblem::Kind::statement) {
    problems_.push_back({offset, message, kind});
  }

  /// Reports what was added, in the order of the text. Nothing before it may be added later.
  void handOver();

  /// Reports all that is left.
  void finish();

 private:
  struct Problem {
    std::size_t offset;
    const char* message;
    TableProblem::Kind kind;
  };

  const char* begin_;
  TextProblems inOrder_;
  std::vector<Problem> problems_;
};

}  // namespace orvanta::strings
