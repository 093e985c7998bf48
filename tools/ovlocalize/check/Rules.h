#pragma once

#include <span>
#include <string_view>
#include <unordered_map>

#include "LanguageFile.h"

namespace ovlocalize {

/// Compares a language's texts with those of English, each `text` under `key` with `english`.
/// `findings` go to `file`.
void checkPlaceholders(LanguageFile& file, std::string_view key, std::string_view english,
                       std::string_view text);

/// Whether English, or the text itself where English has none (null data), is a message; then the
/// text is checked as one.
[[nodiscard]] bool checkMessage(LanguageFile& file, std::string_view key, std::string_view english,
                                std::string_view text);

/// Checks every text of a language against English, and which keys it has. `english` may be the
/// file itself, and is null where there is none.
void checkTexts(LanguageFile& file, const LanguageFile* english);

/// Checks what the languages of a folder have in common.
void checkFolder(LanguageFolder& folder);

}  // namespace ovlocalize
