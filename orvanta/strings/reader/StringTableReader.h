#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/strings/StringTable.h>

namespace orvanta::strings {

/// Where a reader stumbled. Lines and columns count from 1, columns in characters; a binary file
/// has neither, both are 0.
struct TableProblem {
  /// From 1; 0 in a binary file.
  std::size_t line = 0;
  /// In characters, from 1; 0 in a binary file.
  std::size_t column = 0;
  /// What is wrong, for people.
  std::string message;
};

/// Told of each problem, in the order of the file.
using ProblemCollector = std::function<void(const TableProblem&)>;

/// Reads a strings file in any of its three forms, told apart by content: the text form, an XML
/// property list, a binary property list.
///
/// A damaged statement costs that statement alone; every such loss is reported to `problems`, if
/// given. Absent when `bytes` hold nothing like a table; an empty file is an empty table. Throws
/// `std::bad_alloc`, and what `problems` throws.
[[nodiscard]] ORVANTA_EXPORT std::shared_ptr<const StringTable> readStringTable(
    std::string_view bytes, const ProblemCollector& problems = {});

}  // namespace orvanta::strings
