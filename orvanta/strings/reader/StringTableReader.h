#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/strings/StringTable.h>

namespace orvanta::strings {

/// Damage in a file. Lines and columns count from 1, columns in characters. Both are 0 for a binary
/// file, which has neither.
struct TableProblem {
  /// What is damaged.
  enum class Kind : std::uint8_t {
    statement,   ///< Something that is no sound statement.
    characters,  ///< Bytes, or an escape, that stand for no character.
  };

  /// From 1; 0 in a binary file.
  std::size_t line = 0;
  /// In characters, from 1; 0 in a binary file.
  std::size_t column = 0;
  /// What is wrong, for people.
  std::string message;
  /// Characters may stand in a sound statement.
  Kind kind = Kind::statement;
};

/// Told of each problem, in the order of the file.
using ProblemCollector = std::function<void(const TableProblem&)>;

/// A statement that was read, also when a later one with its key holds instead. The place is where
/// the characters of its key begin, or of an XML key its tag.
struct TableStatement {
  /// From 1; 0 in a binary file.
  std::size_t line = 0;
  /// In characters, from 1; 0 in a binary file.
  std::size_t column = 0;
  /// With its escapes resolved.
  std::string key;
};

/// Told of each statement, in the order of the file.
using StatementCollector = std::function<void(const TableStatement&)>;

/// Reads a strings file in any of its three forms, told apart by content: the text form, an XML
/// property list, a binary property list.
///
/// A damaged statement costs that statement alone; every such loss is reported to `problems`, if
/// given. Absent when `bytes` hold nothing like a table; an empty file is an empty table. Every
/// statement that was read is told to `statements`, if given, in the order of the file, once all is
/// read; this takes more time and memory. Throws `std::bad_alloc`, and what the collectors throw.
[[nodiscard]] ORVANTA_EXPORT std::shared_ptr<const StringTable> readStringTable(
    std::string_view bytes, const ProblemCollector& problems = {},
    const StatementCollector& statements = {});

}  // namespace orvanta::strings
