#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/standard/DeviceLanguages.h>

namespace orvanta::standard {

namespace {

// The script subtag of a modifier that names one. Others ("euro", "valencia") say nothing about the
// language's identifier.
std::string_view scriptOfModifier(std::string_view modifier) {
  if (modifier == "latin") {
    return "-Latn";
  }
  if (modifier == "cyrillic") {
    return "-Cyrl";
  }
  return modifier == "devanagari" ? "-Deva" : "";
}

bool isIdentifier(std::string_view text) {
  constexpr std::string_view kAllowed =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-";
  return !text.empty() && text.find_first_not_of(kAllowed) == std::string_view::npos;
}

// The name without its character set and modifier.
std::string_view languageAndRegion(std::string_view locale) {
  return locale.substr(0, locale.find_first_of(".@"));
}

bool namesNoLanguage(std::string_view locale) {
  const std::string_view name = languageAndRegion(locale);
  return name == "C" || name == "POSIX";
}

// "sr-Latn-RS" for "sr_RS.UTF-8@latin"; empty for what is no locale's name.
std::string identifierOfLocale(std::string_view locale) {
  if (namesNoLanguage(locale)) {
    return {};
  }
  std::string identifier(languageAndRegion(locale));
  std::replace(identifier.begin(), identifier.end(), '_', '-');
  if (!isIdentifier(identifier)) {
    return {};
  }
  const std::size_t at = locale.find('@');
  const std::string_view script =
      at == std::string_view::npos ? "" : scriptOfModifier(locale.substr(at + 1));
  return identifier.insert(std::min(identifier.find('-'), identifier.size()), script);
}

String localeInForce(const Environment& environment) {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    String locale = environment(variable);
    if (!locale.empty()) {
      return locale;
    }
  }
  return {};
}

}  // namespace

StringList deviceLanguagesOf(const Environment& environment) {
  std::vector<String> languages;
  const auto add = [&](const String& locale) {
    String identifier = identifierOfLocale(locale.view());
    if (!identifier.empty() &&
        std::find(languages.begin(), languages.end(), identifier) == languages.end()) {
      languages.push_back(std::move(identifier));
    }
  };
  const String locale = localeInForce(environment);
  if (!namesNoLanguage(locale.view())) {
    for (const String& entry : componentsSeparatedBy(':', environment("LANGUAGE"))) {
      add(entry);
    }
    add(locale);
  }
  return StringList(languages);
}

}  // namespace orvanta::standard
