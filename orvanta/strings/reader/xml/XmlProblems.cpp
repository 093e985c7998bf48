#include <algorithm>

#include <orvanta/strings/reader/text/TextProblems.h>
#include <orvanta/strings/reader/xml/XmlProblems.h>

namespace orvanta::strings {

void XmlProblems::add(std::size_t offset, const char* message) {
  if (collector_) {
    problems_.push_back({offset, message});
  }
}

void XmlProblems::handOver() {
  std::stable_sort(problems_.begin(), problems_.end(),
                   [](const Problem& a, const Problem& b) { return a.offset < b.offset; });
  TextProblems inOrder(utf8_.data(), collector_);
  for (const Problem& problem : problems_) {
    inOrder.add(utf8_.data() + problem.offset, problem.message);
  }
  problems_.clear();
}

}  // namespace orvanta::strings
