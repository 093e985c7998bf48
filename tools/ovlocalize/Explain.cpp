#include <algorithm>
#include <iostream>
#include <memory>

#include <orvanta/locale/TextExplanation.h>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "Json.h"
#include "LanguageRequest.h"

namespace ovlocalize {

namespace {

using orvanta::TextExplanation;
using orvanta::TextSource;

struct Question {
  LanguageRequest languages;
  std::vector<std::string> keys;
};

std::string_view wordFor(TextSource source) {
  switch (source) {
    case TextSource::current:
      return "current";
    case TextSource::standIn:
      return "standIn";
    case TextSource::english:
      return "english";
    case TextSource::key:
      break;
  }
  return "key";
}

Json asJson(const std::string& key, const TextExplanation& why) {
  return {{"key", key},
          {"text", toJson(why.text)},
          {"source", wordFor(why.source)},
          {"locale", toJson(why.locale)},
          {"path", toJson(why.bundlePath)},
          {"isDownloaded", why.isDownloaded},
          {"currentLocale", toJson(why.currentLocale)},
          {"request", toJson(why.request)},
          {"fallbackRow", toJson(why.fallbackRow)},
          {"languagePart", toJson(why.languagePart)}};
}

std::string tableOf(const TextExplanation& why) {
  const std::string current = oneLine(why.currentLocale);
  if (why.source == TextSource::key) {
    return "none: no table in use has the key, so it is shown itself";
  }
  std::string table = oneLine(why.locale) + (why.isDownloaded ? ", downloaded" : ", shipped");
  switch (why.source) {
    case TextSource::english:
      return table + "; it stands in for " + current + ", which lacks the key";
    case TextSource::standIn:
      return table + "; it stands in for the downloaded one, which lacks the key";
    default:
      return table;
  }
}

std::string languageOf(const TextExplanation& why, const orvanta::StringList& requested) {
  std::string language = oneLine(why.currentLocale);
  const bool wasRequested =
      std::find(requested.begin(), requested.end(), why.request) != requested.end();
  if (why.request.isPresent() && !wasRequested) {
    language += ", adopted by default: none of the languages asked for is available";
  } else if (why.request.isPresent()) {
    language += ", adopted for the request " + oneLine(why.request);
  } else if (why.currentLocale.isPresent()) {
    language += ", adopted without a request";
  }
  if (why.fallbackRow.isPresent()) {
    language += "; the fallback table leads there from " + oneLine(why.fallbackRow);
  }
  if (why.languagePart.isPresent()) {
    language +=
        "; it has no table of its own, so that of " + oneLine(why.languagePart) + " is used";
  }
  return language;
}

void printLines(const std::string& key, const TextExplanation& why,
                const orvanta::StringList& requested) {
  std::cout << escaped(key) << '\n'
            << "  text      " << oneLine(why.text) << '\n'
            << "  table     " << tableOf(why) << '\n';
  if (why.bundlePath.isPresent()) {
    std::cout << "  folder    " << oneLine(why.bundlePath) << '\n';
  }
  std::cout << "  language  " << languageOf(why, requested) << '\n';
}

int explain(const Settings& settings, const Question& question) {
  installPlatform(settings);
  const orvanta::StringList requested = adopt(question.languages);
  orvanta::Localizer& localizer = orvanta::Localizer::sharedLocalizer();
  Json array = Json::array();
  for (const std::string& key : question.keys) {
    const TextExplanation why = localizer.explain(key);
    if (settings.json) {
      array.push_back(asJson(key, why));
    } else {
      printLines(key, why, requested);
    }
  }
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  return 0;
}

}  // namespace

void addExplain(CommandLine& commands) {
  const auto question = std::make_shared<Question>();
  CLI::App& command =
      commands.add("explain",
                   "Say why a key shows the text that it shows: which table holds it, and how\n"
                   "its language came about",
                   "  ovlocalize --bundle demo/bundle explain --locales zh-TW signin.title\n"
                   "  ovlocalize --bundle demo/bundle --json explain --country CA signin.title",
                   [question](const Settings& settings) { return explain(settings, *question); });
  addLocales(command, question->languages);
  addCountry(command, question->languages);
  command.add_option("keys", question->keys, "The keys to explain")->required()->type_name("KEY");
}

}  // namespace ovlocalize
