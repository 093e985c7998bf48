#include "Mutant.h"

#include <algorithm>
#include <cctype>

#include "Tables.h"

namespace orvanta::fuzz {

namespace {

struct Range {
  std::size_t begin;
  std::size_t end;
};

bool isWord(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '.' ||
         static_cast<unsigned char>(c) >= 0x80;
}

std::size_t tokenEnd(std::string_view text, std::size_t at) {
  const char first = text[at];
  if (first == '"' || first == '\'') {
    std::size_t end = at + 1;
    while (end < text.size() && text[end] != first) {
      end += text[end] == '\\' ? 2 : 1;
    }
    return std::min(end + 1, text.size());
  }
  if (text.substr(at).starts_with("/*")) {
    return std::min(text.find("*/", at), text.size() - 2) + 2;
  }
  const auto runsOn = [&](char c) {
    return isWord(first) ? isWord(c) : first == c && std::isspace(static_cast<unsigned char>(c));
  };
  std::size_t end = at + 1;
  while (end < text.size() && runsOn(text[end])) {
    ++end;
  }
  return end;
}

Range anyToken(std::mt19937& random, std::string_view text) {
  std::vector<Range> tokens;
  for (std::size_t at = 0; at < text.size(); at = tokens.back().end) {
    tokens.push_back({at, tokenEnd(text, at)});
  }
  return tokens[below(random, tokens.size())];
}

std::string anyByte(std::mt19937& random) {
  constexpr std::string_view kMarks = "\"\"\"\"';;;===\\\\{}()<>/*,\n\n\r\t ab0-";
  const std::size_t at = below(random, 2 * kMarks.size());
  return {at < kMarks.size() ? kMarks[at] : static_cast<char>(below(random, 256))};
}

std::string anyToken(std::mt19937& random) {
  static const char* const kTokens[] = {
      "\"", ";",        "=",    "{",  "}",    "(",    ")",       "<",       ">",
      "/*", "*/",       "//",   "\\", "\\\"", "\";",  "'",       "\n",      "word",
      "a;", "\"text\"", "\r\n", ",",  "= x",  "\"\"", "\" = \"", "/* x */", "\U0001F600"};
  return kTokens[below(random, std::size(kTokens))];
}

}  // namespace

Edit inventEdit(std::mt19937& random, std::string_view text) {
  const std::size_t at = below(random, text.size());
  const std::size_t other = std::min(text.size(), at + 1 + below(random, text.size() / 3));
  const Range token = anyToken(random, text);
  switch (below(random, 9)) {
    case 0:
      return {"delete a byte", at, at + 1, ""};
    case 1:
      return {"insert a byte", at, at, anyByte(random)};
    case 2:
      return {"replace a byte", at, at + 1, anyByte(random)};
    case 3:
      return {"delete a token", token.begin, token.end, ""};
    case 4:
      return {"insert a token", at, at, anyToken(random)};
    case 5:
      return {"replace a token", token.begin, token.end, anyToken(random)};
    case 6:
      return {"truncate", at, text.size(), ""};
    case 7:
      return {"join two places", at, other, ""};
    default: {
      const std::size_t size = std::min(text.size() - at, 1 + below(random, 60));
      const std::size_t target = below(random, text.size());
      return {"copy a piece", target, target, std::string(text.substr(at, size)), at, at + size};
    }
  }
}

}  // namespace orvanta::fuzz
