#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ovlocalize {

/// One thing that `check` looks for. Rules are told apart by their addresses.
struct Rule {
  std::string_view name;
  bool isError;
  std::string_view meaning;  ///< For people.
};

namespace rules {

inline constexpr Rule kAll[] = {
    {"statement", true, "no strings file, or a malformed statement in one"},
    {"characters", true, "bytes that are no valid text"},
    {"placeholders", true, "printf placeholders that differ from English"},
    {"arguments", true, "arguments of a message that differ from English"},
    {"message", true, "a malformed message"},
    {"plural", true, "a plural without a category that its language needs"},
    {"identifier", true, "two languages that claim one identifier"},
    {"rare-plural", false, "a plural without a category that only millions need"},
    {"repeated", false, "a key that stands in a file twice"},
    {"missing", false, "a key of English that a language lacks"},
    {"unknown", false, "a key that English lacks"},
    {"empty", false, "an empty text"},
    {"untranslated", false, "a text that equals English"},
    {"folder-case", false, "folders that are one where file names ignore case"},
    {"configuration", false, "a configuration entry that other languages have"},
    {"english", false, "a folder of languages without English"},
};

inline constexpr const Rule& kStatement = kAll[0];
inline constexpr const Rule& kCharacters = kAll[1];
inline constexpr const Rule& kPlaceholders = kAll[2];
inline constexpr const Rule& kArguments = kAll[3];
inline constexpr const Rule& kMessage = kAll[4];
inline constexpr const Rule& kPlural = kAll[5];
inline constexpr const Rule& kIdentifier = kAll[6];
inline constexpr const Rule& kRarePlural = kAll[7];
inline constexpr const Rule& kRepeated = kAll[8];
inline constexpr const Rule& kMissing = kAll[9];
inline constexpr const Rule& kUnknown = kAll[10];
inline constexpr const Rule& kEmpty = kAll[11];
inline constexpr const Rule& kUntranslated = kAll[12];
inline constexpr const Rule& kFolderCase = kAll[13];
inline constexpr const Rule& kConfiguration = kAll[14];
inline constexpr const Rule& kEnglish = kAll[15];

}  // namespace rules

struct Finding {
  const Rule* rule = nullptr;
  std::string file{};    ///< Or a folder.
  std::size_t line = 0;  ///< 0 where the finding has no place.
  std::size_t column = 0;
  std::string key{};  ///< Empty where the finding is about no key.
  std::string message{};
};

}  // namespace ovlocalize
