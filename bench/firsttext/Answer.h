#pragma once

#include <string_view>

#include <unistd.h>

namespace orvanta::bench {

/// Gives the text to the benchmark and ends the process at once.
[[noreturn]] inline void answer(std::string_view text) {
  _exit(write(STDOUT_FILENO, text.data(), text.size()) == static_cast<ssize_t>(text.size()) ? 0
                                                                                            : 1);
}

}  // namespace orvanta::bench
