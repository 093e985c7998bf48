#pragma once

#include <cstddef>

namespace orvanta::strings {

/// The character that `code`, of which the lowest 8 bits count, has in the NeXTSTEP character set:
/// ASCII and 126 more; U+FFFD for the two codes that it leaves free.
[[nodiscard]] char32_t nextStepCharacter(unsigned code) noexcept;

}  // namespace orvanta::strings
