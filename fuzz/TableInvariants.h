#pragma once

#include <string_view>

namespace orvanta::fuzz {

/// Reads `bytes` as a strings file and ends the process where the reader breaks what it promises
/// for any input: every entry is found again under its key, all texts are valid UTF-8, problems
/// stand at a place that the file has, reading again gives the same, and memory and time stay in
/// proportion to the file.
void checkTable(std::string_view bytes);

}  // namespace orvanta::fuzz
