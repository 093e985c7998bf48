#pragma once

#include <span>
#include <string_view>

namespace orvanta::bench {

/// A language of the made-up application: its name and what its texts are made of.
struct Language {
  std::string_view name;
  char32_t firstLetter;
  char32_t lastLetter;
  std::u32string_view accented = {};  ///< Strewn among the letters.
  bool spaced = true;                 ///< Whether blanks stand between its words.
};

/// The 40 languages that the application ships.
[[nodiscard]] std::span<const Language> shippedLanguages();

/// One of them; the name must be known.
[[nodiscard]] const Language& languageNamed(std::string_view name);

}  // namespace orvanta::bench
