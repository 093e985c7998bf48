// Patterns and printf-style texts, with arguments that look like patterns. The first byte chooses
// the language and the arguments, the rest is the pattern.
#include <memory_resource>
#include <string>
#include <vector>

#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/pattern/MessageFormat.h>

#include "Target.h"

namespace orvanta::fuzz {

namespace {

class PlainLocaleData final : public platform::LocaleData {
 public:
  StringList preferredLanguages() const override { return {}; }
  platform::LanguageDirection characterDirectionForLanguage(const String& language) const override {
    return language == "ar" ? platform::LanguageDirection::rightToLeft
                            : platform::LanguageDirection::leftToRight;
  }
  String lowercaseString(const String& text) const override { return text; }
  std::shared_ptr<platform::Calendar> currentCalendar() const override { return nullptr; }
};

// A placeholder for an argument. It is removed from patterns.
constexpr char kToken = '\x01';
constexpr std::string_view kArgument = "a{name}'{ {count, plural, other {#}} %1$@ %d";

std::pmr::string withArgument(std::pmr::string text) {
  for (std::size_t at = 0; (at = text.find(kToken, at)) != text.npos; at += kArgument.size()) {
    text.replace(at, 1, kArgument);
  }
  return text;
}

}  // namespace

void feed(std::string_view input) {
  static PlainLocaleData localeData;
  static const MessageLanguage languages[] = {
      {"en", localeData}, {"ar", localeData}, {"pl", localeData}, {"lv", localeData}};
  const auto choice = static_cast<unsigned char>(input.empty() ? '\0' : input.front());
  std::string pattern(input.substr(std::min<std::size_t>(input.size(), 1)));
  std::erase(pattern, kToken);

  const MessageLanguage& language = languages[choice % 4];
  // With a letter, so that both arguments have the direction left to right.
  const std::string argument = std::string(kArgument) + 'a';
  const std::string token = {kToken, 'a'};
  const auto argumentsWith = [&](const std::string& text) {
    return std::vector<MessageArgument>{
        {"count", (choice / 4 - 16) * 0.5}, {"name", text}, 7, text};
  };
  const std::vector<MessageArgument> arguments = argumentsWith(argument);
  const std::vector<MessageArgument> tokens = argumentsWith(token);
  // Two isolates, or the longest number; a width has two digits at most.
  const std::size_t longest = argument.size() + 100;

  PatternParts parts;
  if (const auto error = parsePattern(pattern, parts)) {
    require(error->position <= pattern.size() && !error->reason.empty(), "an error has its place");
  } else {
    require(parts.size() <= pattern.size(), "as many parts as bytes at most");
    std::pmr::string text;
    std::pmr::string withTokens;
    formatMessage(pattern, parts, arguments, language, text);
    formatMessage(pattern, parts, tokens, language, withTokens);
    require(text.size() <= pattern.size() * longest, "no placeholder is shorter than a byte");
    require(text == withArgument(withTokens), "arguments of messages are not parsed");
  }
  std::pmr::string filled;
  formatPlaceholders(pattern, arguments, language, filled);
  require(filled.size() <= pattern.size() * longest, "no placeholder is shorter than a byte");
}

}  // namespace orvanta::fuzz
