#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::fuzz {

/// One statement of a strings file, with the range of its characters.
struct Statement {
  std::size_t begin = 0;  ///< Of the key.
  std::size_t end = 0;    ///< Behind the semicolon.
  std::size_t keyEnd = 0;
  std::string key;
  std::string value;
  bool isQuoted = true;  ///< The key.
  bool isText = true;    ///< False for a value that is data, an array or a dictionary.
};

struct Reading {
  std::vector<Statement> statements;  ///< Up to the first fault.
  bool isSound = true;
};

/// Strict reader of the text form: one character at a time, no recovery, stops at the first fault.
/// The oracle of the mutation tests; it shares no code with the library's reader.
[[nodiscard]] Reading readByTheLetter(std::string_view text);

}  // namespace orvanta::fuzz
