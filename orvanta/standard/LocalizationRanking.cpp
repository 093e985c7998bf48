#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/standard/LocalizationRanking.h>

namespace orvanta::standard {

namespace {

String find(const StringList& shipped, std::string_view name) {
  const auto* found = std::find(shipped.begin(), shipped.end(), name);
  return found == shipped.end() ? String() : *found;
}

// The script that Chinese is written in where the identifier says a region or nothing; empty for
// any other identifier.
std::string_view scriptOfChinese(std::string_view identifier) {
  for (const char* traditional : {"zh-TW", "zh-HK", "zh-MO"}) {
    if (identifier == traditional) {
      return "zh-Hant";
    }
  }
  for (const char* simplified : {"zh", "zh-CN", "zh-SG", "zh-MY"}) {
    if (identifier == simplified) {
      return "zh-Hans";
    }
  }
  return {};
}

String firstOfLanguage(const StringList& shipped, std::string_view language) {
  const std::string prefix = std::string(language) + '-';
  String first;
  for (const String& name : shipped) {
    if (name.view().starts_with(prefix) && (first.isAbsent() || name.view() < first.view())) {
      first = name;
    }
  }
  return first;
}

String bestMatch(const StringList& shipped, std::string_view identifier) {
  std::string_view name = identifier;
  for (;;) {
    if (String exact = find(shipped, name); exact.isPresent()) {
      return exact;
    }
    if (String script = find(shipped, scriptOfChinese(name)); script.isPresent()) {
      return script;
    }
    const std::size_t hyphen = name.rfind('-');
    if (hyphen == std::string_view::npos) {
      return firstOfLanguage(shipped, name);
    }
    name = name.substr(0, hyphen);
  }
}

}  // namespace

StringList rankLocalizations(const StringList& shipped, const StringList& deviceLanguages) {
  std::vector<String> ranked;
  for (const String& language : deviceLanguages) {
    String match = bestMatch(shipped, language.view());
    if (match.isPresent() && std::find(ranked.begin(), ranked.end(), match) == ranked.end()) {
      ranked.push_back(std::move(match));
    }
  }
  if (ranked.empty()) {
    if (String english = find(shipped, "en"); english.isPresent()) {
      ranked.push_back(std::move(english));
    }
  }
  return StringList(ranked);
}

}  // namespace orvanta::standard
