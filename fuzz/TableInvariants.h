#pragma once

#include <string_view>

namespace orvanta::fuzz {

/// Reads `bytes` as a strings file and aborts the process if an invariant of the reader does not
/// hold: every entry is found under its key, all texts are valid UTF-8, the places of problems lie
/// within the file, a second read gives the same result, and memory and time are linear in the
/// file's size.
void checkTable(std::string_view bytes);

}  // namespace orvanta::fuzz
