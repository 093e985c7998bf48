#include <orvanta/strings/reader/text/TextProblems.h>

namespace orvanta::strings {

void TextProblems::add(const char* at, std::string_view message, TableProblem::Kind kind) {
  for (; damageReported_ < damage_.size() && damage_[damageReported_].at <= at; ++damageReported_) {
    report(damage_[damageReported_].at, damage_[damageReported_].message,
           TableProblem::Kind::characters);
  }
  report(at, message, kind);
}

void TextProblems::addDamage(const WholeUtf8& text) {
  if (const auto& damage = text.damage()) {
    damage_.push_back({text.view().data() + damage->first,
                       std::to_string(damage->count) +
                           " damaged characters from here on; U+FFFD stands for them"});
  }
  if (text.isTorn()) {
    damage_.push_back({text.view().data() + text.view().size(),
                       "the text ends within a character, which is left out"});
  }
}

void TextProblems::finish() {
  for (; damageReported_ < damage_.size(); ++damageReported_) {
    report(damage_[damageReported_].at, damage_[damageReported_].message,
           TableProblem::Kind::characters);
  }
}

void TextProblems::report(const char* at, std::string_view message, TableProblem::Kind kind) {
  any_ = true;
  if (collector_) {
    counter_.countTo(at);
    collector_({counter_.line(), counter_.column(), std::string(message), kind});
  }
}

}  // namespace orvanta::strings
