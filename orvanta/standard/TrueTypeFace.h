#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>

namespace orvanta::standard {

/// What a font file says of the one face in it.
struct TrueTypeFace {
  std::string postScriptName;           ///< 1 to 63 printable ASCII characters.
  platform::SymbolicTraits traits = 0;  ///< Italic and bold.

  friend bool operator==(const TrueTypeFace&, const TrueTypeFace&) = default;
};

/// Reads a TrueType or OpenType font, as the OpenType specification lays it out ("Font file",
/// "name", "head", "OS/2"). Absent for anything else: a collection, a table that reaches beyond the
/// data, no "head" table or no PostScript name. The bytes may come from anywhere.
[[nodiscard]] ORVANTA_EXPORT std::optional<TrueTypeFace> readTrueTypeFace(
    std::span<const std::byte> data);

}  // namespace orvanta::standard
