#pragma once

#include <string_view>

#include <orvanta/strings/StringTable.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/reader/StringTableReader.h>

namespace orvanta::strings {

/// True when `bytes` begin as a binary property list does; none of the other forms can.
[[nodiscard]] bool looksLikeBinaryTable(std::string_view bytes) noexcept;

/// Adds the pairs of a binary property list whose top object is a dictionary of texts.
///
/// Leaves out and reports a pair whose key or value is no text or lies outside of the file, and all
/// pairs from where the table exceeds a generous multiple of the file's size: objects may be
/// shared, and a small file that refers to one long text a million times must not fill the memory.
/// Time and memory are linear in the size of the file.
///
/// False, with the reason reported, when the frame of the file is broken, its top object is no
/// dictionary or none of its keys is a text; nothing was added then.
[[nodiscard]] bool readBinaryTable(std::string_view bytes, StringTableBuilder& table,
                                   const ProblemCollector& problems,
                                   const StatementCollector& statements);

}  // namespace orvanta::strings
