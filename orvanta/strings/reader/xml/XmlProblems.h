#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// Gathers where a text was found damaged, in any order, and hands it on in the order of the text.
/// Lines and columns are worked out then, in one pass; without a collector nothing is kept.
class XmlProblems {
 public:
  XmlProblems(std::string_view utf8, const ProblemCollector& collector)
      : utf8_(utf8), collector_(collector) {}

  /// `message` must live as long as this object.
  void add(std::size_t offset, const char* message);

  void handOver();

 private:
  struct Problem {
    std::size_t offset;
    const char* message;
  };

  std::string_view utf8_;
  const ProblemCollector& collector_;
  std::vector<Problem> problems_;
};

}  // namespace orvanta::strings
