#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <orvanta/strings/StringTable.h>

#include "../Settings.h"
#include "Finding.h"

namespace ovlocalize {

/// One language's strings file, and what is found in it.
struct LanguageFile {
  struct Place {
    std::size_t line = 0;
    std::size_t column = 0;
  };

  std::string language;  ///< The folder's name without ".lproj".
  bool isDownloaded = false;
  std::string file;
  std::shared_ptr<const orvanta::strings::StringTable> table;  ///< Empty where it is unreadable.
  std::unordered_map<std::string, Place> places;  ///< Of the statements that hold, by key.
  std::vector<Finding> findings;
  std::size_t keys = 0;         ///< That are to be translated.
  std::size_t englishKeys = 0;  ///< The same of the English that it is compared with; 0: none.
  std::size_t translated = 0;   ///< Keys of English with a text that is not empty.
  bool isComplete = true;       ///< False where further findings were not kept.

  void add(const Rule& rule, std::string_view key, std::string message);
  void addAt(const Rule& rule, Place place, std::string_view key, std::string message);
  [[nodiscard]] std::string_view text(std::string_view key) const;
  [[nodiscard]] bool has(std::string_view key) const;
};

/// A folder of languages: the bundle, or the cache.
struct LanguageFolder {
  std::string path;
  bool isDownloaded = false;
  std::vector<std::string> names;   ///< Of all folders *.lproj, sorted.
  std::vector<LanguageFile> files;  ///< Of those with a strings file, in that order.

  /// Null when there is none.
  [[nodiscard]] LanguageFile* find(std::string_view language);
};

/// Reads every language of the settings' bundle, and of their cache if they name one. What is wrong
/// with single files is among their findings. Makes no folder. Throws `Failure` when a folder
/// cannot be listed.
[[nodiscard]] std::vector<LanguageFolder> readLanguageFolders(const Settings& settings);

}  // namespace ovlocalize
