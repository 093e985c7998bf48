#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace ovlocalize {

/// One text for a translator.
struct Unit {
  std::string key;
  std::string source;                 ///< In the language that is translated from.
  std::optional<std::string> target;  ///< Absent while it is not translated.
  std::string note;                   ///< What the strings file says about it.
  bool isFuzzy = false;               ///< The translation is to be looked at once more.
  bool isForTranslators = true;       ///< False for configuration.
};

/// The texts of one table in one language.
struct Catalog {
  std::string sourceLanguage;
  std::string language;         ///< As the file names it; empty where it does not.
  bool isOfOneLanguage = true;  ///< False for a file of several.
  std::string table;            ///< The strings file without its folder.
  std::time_t revision = 0;     ///< When the translations were changed.
  std::vector<Unit> units;
  std::size_t leftOut = 0;  ///< Entries of a read file that are no text under a key.
};

}  // namespace ovlocalize
