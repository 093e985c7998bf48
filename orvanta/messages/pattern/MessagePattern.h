#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>

namespace orvanta {

/// What is wrong with a pattern, and at which byte of it.
struct PatternError {
  std::size_t position;     ///< In bytes.
  std::string_view reason;  ///< Static text, for people.
};

/// A piece of a pattern. What belongs to a piece follows it, up to the piece at `next`:
///
///     message      = (text | number | argument | choice)*
///     choice       = (plural | selectOrdinal) offset? branch+  |  select branch+
///     branch       = its selector, then a message
struct PatternPart {
  /// What a piece is.
  enum class Kind : std::uint8_t {
    text,           ///< Literal characters.
    number,         ///< "#", the number of the plural around it.
    argument,       ///< "{name}"; the characters are the name, as in the next three.
    plural,         ///< Chooses by a number.
    selectOrdinal,  ///< Likewise, as in "the 3rd".
    select,         ///< Chooses by a text.
    offset,         ///< The characters are a number.
    branch,         ///< The characters are a keyword, or of a plural "=" and a number.
  };

  Kind kind;            ///< What it is.
  std::uint32_t begin;  ///< Of its characters, in bytes of the pattern.
  std::uint32_t size;   ///< Of its characters, in bytes.
  std::uint32_t next;   ///< The index of the piece behind all that belongs to it.

  /// Its characters. `pattern` is the one that was taken apart.
  [[nodiscard]] std::string_view in(std::string_view pattern) const noexcept {
    return pattern.substr(begin, size);
  }
};

/// The pieces in the order of the pattern.
using PatternParts = std::pmr::vector<PatternPart>;

/// A pattern inside a branch of a pattern, and so on: more than so many are an error.
inline constexpr int kMostNestedPatterns = 32;

/// Takes a pattern apart: ICU's MessageFormat without the argument types that format by themselves
/// (`{when, date}`) and without `choice`. Apostrophes quote as ICU's default mode has it: only
/// before "{" and "}", and before "#" where that stands for a number.
///
/// Time and `parts` are linear in the pattern.
[[nodiscard]] ORVANTA_EXPORT std::optional<PatternError> parsePattern(std::string_view pattern,
                                                                      PatternParts& parts);

/// The number of an offset or of a branch such as "=3"; absent when it is none.
[[nodiscard]] ORVANTA_EXPORT std::optional<double> patternNumber(std::string_view text) noexcept;

}  // namespace orvanta
