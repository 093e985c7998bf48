#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace orvanta::strings {

/// A key or a value as written in the file, without its quotes.
///
///     "quoted, with \"escapes\""    'quoted'    letters_digits_and_$/:.-
struct TextToken {
  const char* begin = nullptr;  ///< Null when there is no token.
  const char* end = nullptr;
  const char* next = nullptr;  ///< Behind the closing quote.
  bool escapes = false;        ///< It contains escapes.

  [[nodiscard]] bool found() const noexcept { return begin != nullptr; }
  [[nodiscard]] std::string_view text() const noexcept { return {begin, end}; }
};

[[nodiscard]] inline bool isQuote(char c) noexcept {
  return c == '"' || c == '\'';
}

/// The token at `at`; none where none begins, or when its quote is not closed before `end`.
[[nodiscard]] TextToken readToken(const char* at, const char* end) noexcept;

/// The same for a quoted token that opens at `open`. `close` is the first quote of its kind behind
/// `open`, or null; `backslash` is the first backslash behind `open`, or `end`.
[[nodiscard]] TextToken readQuoted(const char* open, const char* close, const char* backslash,
                                   const char* end) noexcept;

/// The first `c` from `begin` on; null when there is none before `end`.
[[nodiscard]] inline const char* findCharacter(char c, const char* begin,
                                               const char* end) noexcept {
  return begin == end ? nullptr
                      : static_cast<const char*>(
                            std::memchr(begin, c, static_cast<std::size_t>(end - begin)));
}

}  // namespace orvanta::strings
