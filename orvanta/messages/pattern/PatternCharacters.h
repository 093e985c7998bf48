#pragma once

#include <cstddef>
#include <string_view>

namespace orvanta {

/// The two Unicode properties of which the syntax of patterns is made. Both are immutable: no later
/// version of Unicode changes them.
[[nodiscard]] bool isPatternSyntax(char32_t character) noexcept;
[[nodiscard]] bool isPatternWhiteSpace(char32_t character) noexcept;

/// The position behind the white space that begins at `at`.
[[nodiscard]] std::size_t skipPatternWhiteSpace(std::string_view pattern, std::size_t at) noexcept;

/// The position behind the characters from `at` on that are neither syntax nor white space.
[[nodiscard]] std::size_t skipPatternIdentifier(std::string_view pattern, std::size_t at) noexcept;

}  // namespace orvanta
