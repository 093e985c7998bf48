#include <algorithm>
#include <array>
#include <map>
#include <set>

#include <orvanta/locale/OVLocale.h>
#include <orvanta/text/StringList.h>

#include "../Escaping.h"
#include "Rules.h"

namespace ovlocalize {

namespace {

constexpr std::array<std::string_view, 3> kConfiguration = {
    orvanta::OVOrvantaLanguageAppleIDKey, orvanta::OVOrvantaLanguageEquivalentsKey,
    orvanta::OVOrvantaLanguageVersionKey};

std::string inSmallLetters(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return name;
}

void checkNames(LanguageFolder& folder) {
  std::map<std::string, std::string> names;
  for (const std::string& name : folder.names) {
    const auto [first, isNew] = names.emplace(inSmallLetters(name), name);
    LanguageFile* const file = folder.find(name);
    if (!isNew && file != nullptr) {
      file->addAt(
          rules::kFolderCase, {}, "",
          "the folder is that of " + first->second + " on a disk that ignores case in file names");
    }
  }
}

// Each with the entry that names it; of the folder's name that is none. A shipped language goes by
// its folder's name and by the name in its table, a downloaded one by the latter if it has any.
std::map<std::string, std::string_view> identifiersOf(const LanguageFile& file) {
  std::map<std::string, std::string_view> identifiers;
  const std::string_view name = file.text(orvanta::OVOrvantaLanguageAppleIDKey);
  if (name.data() == nullptr || !file.isDownloaded) {
    identifiers.emplace(file.language, "");
  }
  if (name.data() != nullptr) {
    identifiers.emplace(name, orvanta::OVOrvantaLanguageAppleIDKey);
  }
  std::string_view rest = file.text(orvanta::OVOrvantaLanguageEquivalentsKey);
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    identifiers.emplace(rest.substr(0, comma), orvanta::OVOrvantaLanguageEquivalentsKey);
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  return identifiers;
}

void checkIdentifiers(LanguageFolder& folder) {
  std::map<std::string, const LanguageFile*> owners;
  for (LanguageFile& file : folder.files) {
    for (const auto& [identifier, key] : identifiersOf(file)) {
      const auto [owner, isNew] = owners.emplace(identifier, &file);
      if (!isNew) {
        file.add(rules::kIdentifier, key,
                 "the identifier " + escaped(identifier) + " is claimed by the language " +
                     owner->second->language + " too");
      }
    }
  }
}

void checkConfiguration(LanguageFolder& folder) {
  for (const std::string_view key : kConfiguration) {
    const auto has = [&](const LanguageFile& file) { return file.has(key); };
    const auto first = std::find_if(folder.files.begin(), folder.files.end(), has);
    for (LanguageFile& file : folder.files) {
      if (first != folder.files.end() && file.table != nullptr && !has(file)) {
        file.add(rules::kConfiguration, key,
                 "the configuration entry is missing, which " + first->language + " has");
      }
    }
  }
}

}  // namespace

void checkFolder(LanguageFolder& folder) {
  checkNames(folder);
  checkIdentifiers(folder);
  checkConfiguration(folder);
}

}  // namespace ovlocalize
