#include <charconv>
#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <orvanta/messages/LocalizedMessages.h>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

namespace {

struct Question {
  LanguageRequest languages;
  std::vector<std::string> keys;
  std::vector<std::string> arguments;  // "name=value"
};

// Absent unless the whole text is a number of this type.
template <typename Number>
std::optional<Number> numberOf(const std::string& text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [parsed, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && parsed == end ? std::optional(number) : std::nullopt;
}

// "3" and "1.50" are numbers, with the digits that they show; anything else is text.
orvanta::MessageValue valueOf(const std::string& text) {
  if (const auto integer = numberOf<std::int64_t>(text)) {
    return *integer;
  }
  const bool isPlain = text.find_first_not_of("-.0123456789") == std::string::npos;
  if (const auto real = isPlain ? numberOf<double>(text) : std::nullopt) {
    return orvanta::Decimal{*real, static_cast<int>(text.size() - text.find('.') - 1)};
  }
  return text;
}

// Names and values of the options. The message's arguments view them.
using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs pairsOf(const std::vector<std::string>& arguments) {
  Pairs pairs;
  for (const std::string& argument : arguments) {
    const std::size_t sign = argument.find('=');
    pairs.emplace_back(argument.substr(0, sign), argument.substr(sign + 1));
  }
  return pairs;
}

int lookup(const Settings& settings, const Question& question) {
  installPlatform(settings);
  adopt(question.languages);
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  const Pairs pairs = pairsOf(question.arguments);
  std::vector<orvanta::MessageArgument> arguments;
  for (const auto& [name, value] : pairs) {
    arguments.emplace_back(name, valueOf(value));
  }
  Json array = Json::array();
  for (const std::string& key : question.keys) {
    const orvanta::String text = arguments.empty()
                                     ? localizer.localizedStringForKey(key)
                                     : orvanta::localizedMessageForKey(localizer, key, arguments);
    if (settings.json) {
      array.push_back({{"key", key}, {"text", toJson(text)}});
    } else {
      std::cout << forOutput(text.str()) << '\n';
    }
  }
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  return 0;
}

}  // namespace

void addLookup(CommandLine& commands) {
  const auto question = std::make_shared<Question>();
  CLI::App& command =
      commands.add("lookup", "Print the texts of keys, one a line",
                   "  ovlocalize --bundle demo/bundle --device ar lookup signin.title\n"
                   "  ovlocalize --bundle demo/bundle lookup --locales fr-CA,en signin.title\n"
                   "  ovlocalize --bundle demo/bundle lookup --arg count=3 order.items",
                   [question](const Settings& settings) { return lookup(settings, *question); });
  addLocales(command, question->languages);
  addCountry(command, question->languages);
  command
      .add_option("--arg", question->arguments,
                  "An argument of the texts, which are then messages with {NAME} in them")
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false)
      ->check([](const std::string& argument) {
        return argument.find('=') == std::string::npos ? "it is no NAME=VALUE" : "";
      });
  command.add_option("keys", question->keys, "The keys to look up")->required()->type_name("KEY");
}

}  // namespace ovlocalize
