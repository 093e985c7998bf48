#include <orvanta/strings/reader/text/TextCharacters.h>
#include <orvanta/strings/reader/text/TextProblems.h>

namespace orvanta::strings {

void TextProblems::add(const char* at, std::string_view message) {
  for (; damageReported_ < damage_.size() && damage_[damageReported_].at <= at; ++damageReported_) {
    report(damage_[damageReported_].at, damage_[damageReported_].message);
  }
  report(at, message);
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
    report(damage_[damageReported_].at, damage_[damageReported_].message);
  }
}

void TextProblems::report(const char* at, std::string_view message) {
  any_ = true;
  if (collector_) {
    countTo(at);
    collector_({line_, column_, std::string(message)});
  }
}

// Of a character only the first byte counts. A line break that `at` cuts in two counts as far as it
// stands before `at`.
void TextProblems::countTo(const char* at) noexcept {
  while (counted_ < at) {
    const std::size_t lineBreak = lineBreakAt({counted_, at});
    if (lineBreak > 0) {
      counted_ += lineBreak;
      ++line_;
      column_ = 1;
    } else {
      column_ += (static_cast<unsigned char>(*counted_) & 0xC0) != 0x80 ? 1 : 0;
      ++counted_;
    }
  }
}

}  // namespace orvanta::strings
