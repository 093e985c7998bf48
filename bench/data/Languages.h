#pragma once

#include <span>
#include <string_view>

namespace orvanta::bench {

/// A language of the invented application: its name and the material of its texts.
struct Language {
  std::string_view name;
  char32_t firstLetter;
  char32_t lastLetter;
  std::u32string_view accented = {};  ///< Strewn among the letters.
  bool spaced = true;                 ///< Whether blanks stand between its words.
};

/// The 40 languages that the application ships.
[[nodiscard]] std::span<const Language> shippedLanguages();

/// The language with this name, which must be one of them.
[[nodiscard]] const Language& languageNamed(std::string_view name);

}  // namespace orvanta::bench
