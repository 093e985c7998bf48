#pragma once

#include <string_view>

#include <orvanta/text/String.h>

namespace orvanta {

/// The characters that stand for `text` in a text made from a format template: "(null)" when it is
/// absent. Valid as long as `text`.
[[nodiscard]] inline std::string_view formatArgument(const String& text) noexcept {
  return text.isAbsent() ? std::string_view("(null)") : text.view();
}

}  // namespace orvanta
