// Localizer's matching of requested identifiers against the languages that exist.
#include <string>
#include <utility>
#include <vector>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/text/CharacterSet.h>
#include <orvanta/text/FormatArgument.h>

namespace orvanta {

const FallbackTable& Localizer::fallbackTable() const {
  if (fallbackTable_.isAbsent()) {
    fallbackTable_ = makeFallbackTable();
  }
  return fallbackTable_;
}

// In this file for the benchmark's row `match`: inlined into the matching of every request.
OVStringCache& Localizer::stringCache() const {
  if (stringCache_ == nullptr) {
    stringCache_ = std::make_shared<OVStringCache>();
  }
  return *stringCache_;
}

String Localizer::localeWithFallbacksApplied(const String& identifier) const {
  return resolve(identifier).locale;
}

Localizer::Resolved Localizer::resolve(const String& identifier) const {
  String trimmed = stringByTrimming(identifier, CharacterSet::whitespace);
  const HashedKey key(trimmed.view());
  const String* instead = trimmed.isAbsent() ? nullptr : fallbackTable().find(key);
  return instead == nullptr ? Resolved{std::move(trimmed), key, false}
                            : Resolved{*instead, HashedKey(instead->view()), true};
}

String Localizer::languageOnlyFromString(const String& identifier) {
  return languagePart(identifier);
}

inline bool Localizer::hasBundleFor(const Resolved& resolved) const {
  return resolved.locale.empty() ? mainBundle_ != nullptr
                                 : stringCache().hasBundleForLanguage(resolved.key);
}

// Inline for the benchmark's row `match`.
[[gnu::always_inline]] inline Localizer::Match Localizer::match(const String& request) const {
  Resolved resolved = resolve(request);
  if (hasBundleFor(resolved)) {
    return {true, std::move(resolved.locale), resolved.isFromTable, false};
  }
  // The language part of the request itself, not of what the table gave for it: "zh-TW" may so end
  // in "zh-Hans".
  resolved = resolve(languagePart(request));
  if (resolved.locale != request && hasBundleFor(resolved)) {
    return {true, std::move(resolved.locale), resolved.isFromTable, true};
  }
  return {};
}

StringList Localizer::availableLocalesFromArray(const StringList& requested) const {
  if (requested.empty()) {
    return {String::fromStatic(lastResortLocale)};
  }
  StringList::Builder available(requested.size());
  for (const String& request : requested) {
    Match found = match(request);
    if (found.isAvailable) {
      available.add(std::move(found.locale));
    }
  }
  return std::move(available).build();
}

StringList Localizer::localesFromLanguages(const StringList& languages, const String& country) {
  std::vector<String> locales;
  locales.reserve(languages.size());
  for (const String& language : languages) {
    if (language.utf16Length() == 2) {
      std::string regional = language.str() + '-';
      regional += formatArgument(country);
      locales.emplace_back(regional);
    }
    locales.push_back(language);
  }
  return StringList(locales);
}

std::shared_ptr<platform::Bundle> Localizer::languageBundleForLocale(
    const String& identifier) const {
  return identifier.empty() ? mainBundle_ : stringCache().bundleForLanguage(identifier);
}

platform::Bundle* Localizer::defaultLocaleBundle() const {
  if (defaultLocaleBundle_ == nullptr) {
    defaultLocaleBundle_ = languageBundleForLocale(String::fromStatic(lastResortLocale));
  }
  return defaultLocaleBundle_.get();
}

bool Localizer::rightToLeftOrientationForLocale(const String& identifier) const {
  const std::string_view whole = identifier.view();
  const std::string_view language = whole.substr(0, whole.find('-'));
  return language == arabicCode || language == hebrewCode || language == urduCode;
}

void Localizer::explainLocale(TextExplanation& explanation) const {
  if (preferredLocales_.empty()) {
    return;
  }
  const String& locale = explanation.currentLocale = preferredLocales_.front();
  for (const String& request : adoptedRequest_) {
    const Match found = match(request);
    if (!found.isAvailable || found.locale != locale) {
      continue;
    }
    explanation.request = request;
    const String asked = found.isFromLanguagePart ? languagePart(request) : request;
    if (found.isFromTable) {
      explanation.fallbackRow = stringByTrimming(asked, CharacterSet::whitespace);
    }
    if (found.isFromLanguagePart) {
      explanation.languagePart = asked;
    }
    break;
  }
  const String part = languagePart(locale);
  const OVLocaleDictionary available = stringCache().availableLanguages();
  if (explanation.languagePart.isAbsent() && part != locale && available.find(locale) == nullptr) {
    explanation.languagePart = part;
  }
}

}  // namespace orvanta
