#include <orvanta/strings/reader/xml/XmlNesting.h>

namespace orvanta::strings {

namespace {

constexpr char kArray = 'a';
constexpr char kDictionary = 'd';
constexpr char kLeaf = 'l';

char kindOf(std::string_view name) noexcept {
  if (name == "array") {
    return kArray;
  }
  return name == "dict" ? kDictionary : kLeaf;
}

}  // namespace

bool XmlNesting::isInDictionary() const noexcept {
  return !open_.empty() && open_.back() == kDictionary;
}

void XmlNesting::open(std::string_view name) {
  const char kind = kindOf(name);
  arrays_ += kind == kArray ? 1 : 0;
  dictionaries_ += kind == kDictionary ? 1 : 0;
  open_.push_back(kind);
}

void XmlNesting::endLeaf() {
  if (!open_.empty() && open_.back() == kLeaf) {
    open_.pop_back();
  }
}

bool XmlNesting::close(std::string_view name) {
  const char kind = kindOf(name);
  if (kind == kLeaf) {
    const bool any = !open_.empty() && open_.back() == kLeaf;
    endLeaf();
    return any;
  }
  if ((kind == kArray ? arrays_ : dictionaries_) == 0) {
    return false;
  }
  for (char last = kLeaf; last != kind;) {
    last = open_.back();
    open_.pop_back();
    arrays_ -= last == kArray ? 1 : 0;
    dictionaries_ -= last == kDictionary ? 1 : 0;
  }
  return true;
}

}  // namespace orvanta::strings
