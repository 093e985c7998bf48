#pragma once

#include <cstddef>
#include <vector>

#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/reader/text/TextProblems.h>

namespace orvanta::strings {

/// Collects the problems of an XML text, by offset, and reports them in the order of the text.
class XmlProblems {
 public:
  /// Both must outlive this.
  XmlProblems(const WholeUtf8& text, const ProblemCollector& collector);

  /// `message` must live as long as this object.
  void add(std::size_t offset, const char* message,
           TableProblem::Kind kind = TableProblem::Kind::statement) {
    problems_.push_back({offset, message, kind});
  }

  /// Reports what was added so far, in order. Problems added later must stand behind it.
  void flush();

  /// Reports the rest.
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
