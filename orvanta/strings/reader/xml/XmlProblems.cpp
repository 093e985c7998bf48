#include <algorithm>

#include <orvanta/strings/reader/xml/XmlProblems.h>

namespace orvanta::strings {

XmlProblems::XmlProblems(const WholeUtf8& text, const ProblemCollector& collector)
    : begin_(text.view().data()), inOrder_(begin_, collector) {
  inOrder_.addDamage(text);
}

void XmlProblems::flush() {
  std::stable_sort(problems_.begin(), problems_.end(),
                   [](const Problem& a, const Problem& b) { return a.offset < b.offset; });
  for (const Problem& problem : problems_) {
    inOrder_.add(begin_ + problem.offset, problem.message, problem.kind);
  }
  problems_.clear();
}

void XmlProblems::finish() {
  flush();
  inOrder_.finish();
}

}  // namespace orvanta::strings
