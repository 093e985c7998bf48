// Patterns and printf-style texts, with arguments that look like patterns. The first byte chooses
// the language and the arguments, the rest is the pattern.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/pattern/MessageFormat.h>

namespace {

using orvanta::MessageArguments;
using orvanta::MessageLanguage;

void expect(bool holds, std::string_view what) {
  if (!holds) {
    std::cerr << "broken promise: " << what << '\n';
    std::abort();
  }
}

class PlainLocaleData final : public orvanta::platform::LocaleData {
 public:
  orvanta::StringList preferredLanguages() const override { return {}; }
  orvanta::platform::LanguageDirection characterDirectionForLanguage(
      const orvanta::String& language) const override {
    return language == "ar" ? orvanta::platform::LanguageDirection::rightToLeft
                            : orvanta::platform::LanguageDirection::leftToRight;
  }
  orvanta::String lowercaseString(const orvanta::String& text) const override { return text; }
  std::shared_ptr<orvanta::platform::Calendar> currentCalendar() const override { return nullptr; }
};

// A placeholder for an argument. It is removed from patterns.
constexpr char kToken = '\x01';
constexpr std::string_view kArgument = "a{name}'{ {count, plural, other {#}} %1$@ %d";

std::string withArgument(std::string_view text) {
  std::string result;
  for (const char character : text) {
    if (character == kToken) {
      result += kArgument;
    } else {
      result += character;
    }
  }
  return result;
}

std::string message(std::string_view pattern, const orvanta::PatternParts& parts,
                    const MessageLanguage& language, const MessageArguments& arguments) {
  std::pmr::string text;
  orvanta::formatMessage(pattern, parts, arguments, language, text);
  return std::string(text);
}

std::string filled(std::string_view text, const MessageLanguage& language,
                   const MessageArguments& arguments) {
  std::pmr::string out;
  orvanta::formatPlaceholders(text, arguments, language, out);
  return std::string(out);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static PlainLocaleData localeData;
  static const MessageLanguage languages[] = {
      {"en", localeData}, {"ar", localeData}, {"pl", localeData}, {"lv", localeData}};
  const std::uint8_t choice = size == 0 ? 0 : data[0];
  std::string pattern(reinterpret_cast<const char*>(data) + std::min<std::size_t>(size, 1),
                      size == 0 ? 0 : size - 1);
  std::erase(pattern, kToken);

  const MessageLanguage& language = languages[choice % 4];
  const double count = (choice / 4 - 16) * 0.5;
  // With a letter, so that both arguments have the direction left to right.
  const std::string token = std::string(1, kToken) + "a";
  const std::string argument = std::string(kArgument) + "a";
  const std::vector<orvanta::MessageArgument> tokens = {
      {"count", count}, {"name", token}, 7, token};
  const std::vector<orvanta::MessageArgument> arguments = {
      {"count", count}, {"name", argument}, 7, argument};
  // Two isolates, or the longest number; a width has two digits at most.
  const std::size_t longest = argument.size() + 100;

  orvanta::PatternParts parts;
  if (const auto error = orvanta::parsePattern(pattern, parts)) {
    expect(error->position <= pattern.size() && !error->reason.empty(), "an error has its place");
  } else {
    expect(parts.size() <= pattern.size(), "as many parts as bytes at most");
    const std::string text = message(pattern, parts, language, arguments);
    expect(text.size() <= pattern.size() * longest, "no placeholder is shorter than a byte");
    expect(text == withArgument(message(pattern, parts, language, tokens)),
           "arguments of messages are not parsed");
  }
  const std::string text = filled(pattern, language, arguments);
  expect(text.size() <= pattern.size() * longest, "no placeholder is shorter than a byte");
  return 0;
}
