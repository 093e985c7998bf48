#pragma once

#include <cstddef>

namespace orvanta::strings {

/// The character with the number `code` modulo 256 in the NeXTSTEP character set: ASCII and 126
/// more; U+FFFD for the two numbers that are not assigned.
[[nodiscard]] char32_t nextStepCharacter(unsigned code) noexcept;

}  // namespace orvanta::strings
