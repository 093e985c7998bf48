#include <algorithm>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/messages/Placeholders.h>

#include "../Addresses.h"
#include "../Escaping.h"
#include "../Tables.h"
#include "Rules.h"

namespace ovlocalize {

namespace {

bool isLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
         static_cast<unsigned char>(byte) >= 0x80;
}

// Whether there is anything to translate beside the placeholders.
bool holdsWords(std::string_view text) {
  std::size_t begin = 0;
  orvanta::PlaceholderReader placeholders(text);
  for (;;) {
    const auto found = placeholders.next();
    const std::string_view words =
        text.substr(begin, found ? found->begin - begin : std::string_view::npos);
    if (std::any_of(words.begin(), words.end(), isLetter)) {
      return true;
    }
    if (!found) {
      return false;
    }
    begin = found->begin + found->size;
  }
}

void checkAgainstEnglish(LanguageFile& file, std::string_view key, std::string_view english,
                         std::string_view text) {
  if (text.empty() && !english.empty()) {
    file.add(rules::kEmpty, key, "the text is empty");
    return;
  }
  ++file.translated;
  if (!checkMessage(file, key, english, text)) {
    checkPlaceholders(file, key, english, text);
  }
  if (text == english && holdsWords(text) && !isAddress(text) &&
      orvanta::languagePart(file.language) != "en") {
    file.add(rules::kUntranslated, key, "the text is that of English: " + quoted(text));
  }
}

void checkOnItsOwn(LanguageFile& file, std::string_view key, std::string_view text) {
  if (text.empty()) {
    file.add(rules::kEmpty, key, "the text is empty");
  }
  static_cast<void>(checkMessage(file, key, {}, text));
}

}  // namespace

void checkTexts(LanguageFile& file, const LanguageFile* english) {
  if (file.table == nullptr) {
    return;
  }
  const bool isEnglish = english == &file;
  for (const auto& [key, text] : file.table->entries()) {
    if (isConfigurationKey(key)) {
      continue;
    }
    ++file.keys;
    const std::string_view source =
        english == nullptr || isEnglish ? std::string_view() : english->text(key);
    if (source.data() != nullptr) {
      checkAgainstEnglish(file, key, source, text);
      continue;
    }
    checkOnItsOwn(file, key, text);
    if (isEnglish) {
      file.translated += text.empty() ? 0 : 1;
    } else if (english != nullptr) {
      file.add(rules::kUnknown, key, "English does not have the key");
    }
  }
  if (english == nullptr || english->table == nullptr || isEnglish) {
    return;
  }
  for (const auto& [key, text] : english->table->entries()) {
    if (!isConfigurationKey(key) && !file.has(key)) {
      file.add(rules::kMissing, key, "the key is missing");
    }
  }
}

}  // namespace ovlocalize
