#pragma once

#include <sstream>
#include <string>
#include <string_view>

namespace ovlocalize {

/// Names and texts from outside as one line that a terminal cannot mistake for commands: control
/// characters as \n, \t, \r or \U and four hexadecimal digits, bytes that are not UTF-8 as \x and
/// two. Nothing else is escaped.
[[nodiscard]] std::string escaped(std::string_view text);

/// What `<<` prints of the value, escaped.
template <typename Value>
[[nodiscard]] std::string oneLine(const Value& value) {
  std::ostringstream out;
  out << value;
  return escaped(out.str());
}

/// The text as a quoted token of a strings file, quotes and backslashes escaped too.
[[nodiscard]] std::string quoted(std::string_view text);

/// JSON text with those control characters escaped that JSON allows in its strings.
[[nodiscard]] std::string escapedJson(std::string_view json);

/// The text itself when standard output is a file or a pipe; escaped when it is a terminal.
[[nodiscard]] std::string forOutput(const std::string& text);

}  // namespace ovlocalize
