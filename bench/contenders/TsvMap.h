#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace orvanta::bench {

/// The floor of the loading rows: a map of strings.
using TsvMap = std::unordered_map<std::string, std::string>;

/// Reads a file written by `tabSeparated`.
[[nodiscard]] TsvMap loadTsv(const std::filesystem::path& path);

}  // namespace orvanta::bench
