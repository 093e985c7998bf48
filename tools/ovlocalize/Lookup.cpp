#include <iostream>
#include <memory>
#include <string>
#include <vector>

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
};

int lookup(const Settings& settings, const Question& question) {
  installPlatform(settings);
  adopt(question.languages);
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  Json array = Json::array();
  for (const std::string& key : question.keys) {
    const orvanta::String text = localizer.localizedStringForKey(key);
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
                   "  ovlocalize --bundle demo/bundle lookup --locales fr-CA,en signin.title",
                   [question](const Settings& settings) { return lookup(settings, *question); });
  addLocales(command, question->languages);
  addCountry(command, question->languages);
  command.add_option("keys", question->keys, "The keys to look up")->required()->type_name("KEY");
}

}  // namespace ovlocalize
