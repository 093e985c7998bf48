#include "SourceKeys.h"

#include <algorithm>
#include <optional>

#include "SourceLexer.h"

namespace ovlocalize {

namespace {

using Kind = SourceToken::Kind;
using Argument = std::vector<SourceToken>;

std::vector<SourceToken> tokensOf(std::string_view source) {
  SourceLexer lexer(source);
  std::vector<SourceToken> tokens;
  for (SourceToken token = lexer.next(); token.kind != Kind::kEnd; token = lexer.next()) {
    tokens.push_back(std::move(token));
  }
  return tokens;
}

bool isOpening(const SourceToken& token) noexcept {
  return token.is('(') || token.is('[') || token.is('{');
}

bool isClosing(const SourceToken& token) noexcept {
  return token.is(')') || token.is(']') || token.is('}');
}

// The tokens of argument `index` of the call whose "(" stands at `open`; absent when the call has
// fewer arguments. A call nested in an argument is scanned again for itself, so that an argument is
// looked at once for each function it stands in: `kLongest` keeps that linear.
std::optional<Argument> argumentAt(const std::vector<SourceToken>& tokens, std::size_t open,
                                   std::size_t index) {
  constexpr std::size_t kLongest = 4096;
  std::size_t depth = 0;
  Argument argument;
  const std::size_t end = std::min(tokens.size(), open + kLongest);
  for (std::size_t at = open; at < end; ++at) {
    const SourceToken& token = tokens[at];
    if (isClosing(token) && --depth == 0) {
      return index == 0 && !argument.empty() ? std::optional(argument) : std::nullopt;
    }
    if (depth == 1 && token.is(',')) {
      if (index == 0) {
        return argument;
      }
      --index;
    } else if (depth > 0 && index == 0) {
      argument.push_back(token);
    }
    depth += isOpening(token) ? 1 : 0;
  }
  return std::nullopt;
}

// The text of adjacent literals, bare or as the only argument of a call; absent for anything else.
std::optional<std::string> literalOf(const Argument& argument) {
  std::size_t begin = 0;
  std::size_t end = argument.size();
  if (end > 2 && argument.front().kind == Kind::kIdentifier && argument.back().is(')')) {
    while (begin < end && !argument[begin].is('(')) {
      ++begin;
    }
    ++begin;
    --end;
  }
  std::string text;
  for (std::size_t at = begin; at < end; ++at) {
    if (argument[at].kind != Kind::kString) {
      return std::nullopt;
    }
    text += argument[at].text;
  }
  return begin < end ? std::optional(text) : std::nullopt;
}

bool isCallOf(const KeyFunction& function, const std::vector<SourceToken>& tokens, std::size_t at) {
  return tokens[at].text == function.name &&
         (function.object.empty() ||
          (at >= 2 && tokens[at - 1].is('.') && tokens[at - 2].text == function.object));
}

// Of the call whose "(" stands at `open`; empty where it is computed, absent without the argument.
std::optional<std::string> keyOf(const KeyFunction& function,
                                 const std::vector<SourceToken>& tokens, std::size_t open) {
  std::optional<std::string> key;
  for (std::size_t index = function.argument; index <= function.last; ++index) {
    const auto argument = argumentAt(tokens, open, index);
    if (!argument) {
      break;
    }
    key = literalOf(*argument).value_or("");
    if (!key->empty()) {
      break;
    }
  }
  return key;
}

}  // namespace

std::vector<KeyFunction> libraryKeyFunctions() {
  return {{"localizedStringForKey", 0, 0, ""},
          {"localizedMessageForKey", 0, 1, ""},  // The first may be a localizer.
          {"localizedStringWithFormat", 0, 1, ""},
          {"localize", 2, 3, ""},  // The third may be a setter.
          {"setKey", 0, 0, ""},
          {"text", 0, 0, "Orvanta"},
          {"message", 0, 0, "Orvanta"}};
}

void collectSourceKeys(std::string_view source, const std::string& file,
                       std::span<const KeyFunction> functions, std::vector<KeyUse>& uses) {
  const std::vector<SourceToken> tokens = tokensOf(source);
  for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
    if (tokens[at].kind != Kind::kIdentifier || !tokens[at + 1].is('(')) {
      continue;
    }
    const auto function =
        std::find_if(functions.begin(), functions.end(),
                     [&](const KeyFunction& one) { return isCallOf(one, tokens, at); });
    if (function == functions.end()) {
      continue;
    }
    if (const auto key = keyOf(*function, tokens, at + 1)) {
      uses.push_back({*key, file, tokens[at].line});
    }
  }
}

}  // namespace ovlocalize
