#pragma once

#include <string>

#include "data/Corpus.h"

/// The bytes of a table in the forms that it has on disk.
namespace orvanta::bench {

/// The text form as developers write it, in UTF-8 without byte-order mark.
[[nodiscard]] std::string textFormUtf8(const Table& table);

/// The same in little-endian UTF-16 with byte-order mark.
[[nodiscard]] std::string textFormUtf16(const Table& table);

/// The form that build tools compile a table to.
[[nodiscard]] std::string binaryPropertyList(const Table& table);

/// UTF-8, a line for each entry: key, tab, value; backslash, tab and line feed are written "\\\\",
/// "\\t" and "\\n".
[[nodiscard]] std::string tabSeparated(const Table& table);

}  // namespace orvanta::bench
