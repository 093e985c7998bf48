#pragma once

#include <string>
#include <string_view>

namespace ovlocalize {

/// What a piece of an answer for people is.
enum class Tone { kError, kWarning, kHeading };

/// The text in the colour of the tone, when `isColored`.
[[nodiscard]] inline std::string painted(bool isColored, Tone tone, std::string_view text) {
  if (!isColored) {
    return std::string(text);
  }
  const std::string_view code = tone == Tone::kError     ? "\x1B[1;31m"
                                : tone == Tone::kWarning ? "\x1B[1;33m"
                                                         : "\x1B[1m";
  return std::string(code).append(text).append("\x1B[0m");
}

}  // namespace ovlocalize
