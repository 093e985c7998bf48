#include "MessageShape.h"

#include <cctype>

namespace ovlocalize {

namespace {

using orvanta::PatternParts;
using Kind = orvanta::PatternPart::Kind;

std::size_t skipWhile(std::string_view text, std::size_t at, int (*is)(int)) {
  while (at < text.size() && is(static_cast<unsigned char>(text[at])) != 0) {
    ++at;
  }
  return at;
}

int isOfName(int character) {
  return static_cast<int>(std::isalnum(character) != 0 || character == '_' || character == '-');
}

// "{", a name, ",", one of the types and "," with white space anywhere between them.
bool opensChoice(std::string_view text, std::size_t brace) {
  std::size_t at = skipWhile(text, brace + 1, std::isspace);
  const std::size_t name = at;
  at = skipWhile(text, at, isOfName);
  const bool hasName = at > name;
  at = skipWhile(text, at, std::isspace);
  if (!hasName || at == text.size() || text[at] != ',') {
    return false;
  }
  at = skipWhile(text, at + 1, std::isspace);
  const std::size_t end = skipWhile(text, at, std::isalpha);
  const std::string_view type = text.substr(at, end - at);
  at = skipWhile(text, end, std::isspace);
  return at < text.size() && text[at] == ',' &&
         (type == "plural" || type == "selectordinal" || type == "select");
}

bool holdsChoice(std::string_view text) {
  for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 1)) {
    if (opensChoice(text, at)) {
      return true;
    }
  }
  return false;
}

void addBranches(std::string_view text, const PatternParts& parts, std::size_t choice,
                 MessageShape& shape) {
  const bool isSelect = parts[choice].kind == Kind::select;
  PluralShape plural;
  plural.argument = parts[choice].in(text);
  plural.type = parts[choice].kind == Kind::plural ? orvanta::PluralType::cardinal
                                                   : orvanta::PluralType::ordinal;
  ArgumentShape& argument = shape.arguments[plural.argument];
  (isSelect ? argument.isSelect : argument.isNumber) = true;
  for (std::size_t at = choice + 1; at < parts[choice].next; at = parts[at].next) {
    const std::string_view selector = parts[at].in(text);
    if (parts[at].kind == Kind::offset) {
      plural.offset = orvanta::patternNumber(selector).value_or(0);
    } else if (isSelect) {
      if (selector != "other") {
        argument.selectors.insert(selector);
      }
    } else if (selector.starts_with('=')) {
      plural.numbers.insert(orvanta::patternNumber(selector.substr(1)).value_or(0));
    } else {
      plural.keywords.insert(selector);
    }
  }
  if (!isSelect) {
    shape.plurals.push_back(std::move(plural));
  }
}

}  // namespace

MessageShape messageShapeOf(std::string_view text) {
  MessageShape shape;
  if (text.find('{') == std::string_view::npos) {
    return shape;
  }
  PatternParts parts;
  shape.error = orvanta::parsePattern(text, parts);
  if (shape.error) {
    shape.isMessage = holdsChoice(text);
    return shape;
  }
  for (std::size_t at = 0; at < parts.size(); ++at) {
    if (parts[at].kind == Kind::argument) {
      shape.arguments[parts[at].in(text)];
    } else if (parts[at].kind == Kind::plural || parts[at].kind == Kind::selectOrdinal ||
               parts[at].kind == Kind::select) {
      addBranches(text, parts, at, shape);
    }
  }
  shape.isMessage = !shape.arguments.empty();
  return shape;
}

}  // namespace ovlocalize
