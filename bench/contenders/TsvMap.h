#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace orvanta::bench {

/// The floor of loading: a map of strings.
using TsvMap = std::unordered_map<std::string, std::string>;

/// Reads a file that `tabSeparated` made.
[[nodiscard]] TsvMap loadTsv(const std::filesystem::path& path);

}  // namespace orvanta::bench
