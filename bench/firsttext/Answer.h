#pragma once

#include <string_view>

#include <unistd.h>

namespace orvanta::bench {

/// Writes the text for the benchmark and exits the process immediately.
[[noreturn]] inline void answer(std::string_view text) {
  _exit(write(STDOUT_FILENO, text.data(), text.size()) == static_cast<ssize_t>(text.size()) ? 0
                                                                                            : 1);
}

}  // namespace orvanta::bench
