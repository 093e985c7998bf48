#include "Identifiers.h"

#include <algorithm>
#include <iterator>

#include <orvanta/text/Utf8.h>

#include "../Escaping.h"

namespace ovlocalize {

namespace {

// Those of C++, macros that are as common, and the namespace that the header itself has.
constexpr std::string_view kKeywords[] = {"alignas",       "alignof",     "and",
                                          "and_eq",        "asm",         "auto",
                                          "bitand",        "bitor",       "bool",
                                          "break",         "case",        "catch",
                                          "char",          "char16_t",    "char32_t",
                                          "char8_t",       "class",       "co_await",
                                          "co_return",     "co_yield",    "compl",
                                          "concept",       "const",       "const_cast",
                                          "consteval",     "constexpr",   "constinit",
                                          "continue",      "decltype",    "default",
                                          "delete",        "do",          "double",
                                          "dynamic_cast",  "else",        "enum",
                                          "explicit",      "export",      "extern",
                                          "false",         "float",       "for",
                                          "friend",        "goto",        "if",
                                          "inline",        "int",         "long",
                                          "mutable",       "namespace",   "new",
                                          "noexcept",      "not",         "not_eq",
                                          "nullptr",       "operator",    "or",
                                          "or_eq",         "private",     "protected",
                                          "public",        "register",    "reinterpret_cast",
                                          "requires",      "return",      "short",
                                          "signed",        "sizeof",      "static",
                                          "static_assert", "static_cast", "struct",
                                          "switch",        "template",    "this",
                                          "thread_local",  "throw",       "true",
                                          "try",           "typedef",     "typeid",
                                          "typename",      "union",       "unsigned",
                                          "using",         "virtual",     "void",
                                          "volatile",      "wchar_t",     "while",
                                          "xor",           "xor_eq",      "NULL",
                                          "EOF",           "assert",      "errno",
                                          "messages"};

bool isKeyword(std::string_view name) {
  return std::find(std::begin(kKeywords), std::end(kKeywords), name) != std::end(kKeywords);
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

bool isOfIdentifier(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         isDigit(character);
}

}  // namespace

std::string identifierFor(std::string_view key) {
  std::string name;
  for (const char character : key) {
    if (isOfIdentifier(character)) {
      name += character;
    } else if (!name.empty() && name.back() != '_') {
      name += '_';
    }
  }
  if (name.ends_with('_')) {
    name.pop_back();
  }
  const bool needsPrefix = !name.empty() && (isDigit(name.front()) || isKeyword(name));
  return needsPrefix ? "key_" + name : name;
}

bool isNamespace(std::string_view name) {
  while (true) {
    const std::size_t end = std::min(name.find("::"), name.size());
    const std::string_view part = name.substr(0, end);
    const bool isSound = !part.empty() && !isDigit(part.front()) && !isKeyword(part) &&
                         std::all_of(part.begin(), part.end(), [](char character) {
                           return isOfIdentifier(character) || character == '_';
                         });
    if (!isSound || end == name.size()) {
      return isSound;
    }
    name.remove_prefix(end + 2);
  }
}

std::string literalFor(std::string_view text) {
  std::string literal = "\"";
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\' || character == '?') {
      literal += '\\';
      literal += character;
    } else if (byte >= 0x20 && byte < 0x7F) {
      literal += character;
    } else {
      literal += '\\';
      literal += static_cast<char>('0' + (byte >> 6));
      literal += static_cast<char>('0' + ((byte >> 3) & 7));
      literal += static_cast<char>('0' + (byte & 7));
    }
  }
  return literal + '"';
}

std::string commentFor(std::string_view text) {
  const std::string line = quoted(text);
  std::string comment;
  for (std::string_view rest = line; !rest.empty();) {
    const auto character = orvanta::utf8::decode(rest);
    const char32_t code = character.codePoint;
    const bool turns = code == 0x61C || code == 0x200E || code == 0x200F ||
                       (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    if (!turns) {
      comment += rest.substr(0, character.length);
    }
    rest.remove_prefix(character.length);
  }
  return comment;
}

}  // namespace ovlocalize
