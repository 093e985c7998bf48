#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include <orvanta/messages/plural/PluralOperands.h>

namespace orvanta {

/// The plural categories of CLDR. No language has them all; every language has `other`.
enum class PluralCategory : std::uint8_t { zero, one, two, few, many, other };

using PluralRule = PluralCategory (*)(const PluralOperands&);

/// The rules of one language.
struct PluralRow {
  std::string_view locale;  ///< A language ("pt"), or a language and a region ("pt-PT").
  PluralRule cardinal;      ///< Of "3 files".
  PluralRule ordinal;       ///< Of "the 3rd file".
};

/// The rules of every language that CLDR has rules for, sorted by locale.
[[nodiscard]] std::span<const PluralRow> pluralTable() noexcept;

}  // namespace orvanta
