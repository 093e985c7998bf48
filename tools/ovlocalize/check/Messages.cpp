#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include <orvanta/messages/PluralKeyword.h>

#include "../Escaping.h"
#include "../MessageShape.h"
#include "../pseudo/PseudoText.h"
#include "Rules.h"

namespace ovlocalize {

namespace {

constexpr std::array<std::string_view, 6> kKeywords = {"zero", "one",  "two",
                                                       "few",  "many", "other"};
constexpr std::int64_t kUsual = 1000;
constexpr std::int64_t kMillion = 1'000'000;

// The whole numbers from 0 to `kUsual` that take each keyword in a language.
using NumbersOfKeywords = std::map<std::string_view, std::vector<std::int64_t>>;

NumbersOfKeywords numbersOfKeywords(const std::string& language, const PluralShape& plural) {
  NumbersOfKeywords numbers;
  for (std::int64_t number = 0; number <= kUsual; ++number) {
    const double left = std::abs(static_cast<double>(number) - plural.offset);
    numbers[orvanta::pluralKeyword(language, left, plural.type)].push_back(number);
  }
  return numbers;
}

// A table may hold any number of plurals; those without an offset share their numbers.
const NumbersOfKeywords& usualNumbers(const std::string& language, const PluralShape& plural) {
  static std::map<std::pair<std::string, orvanta::PluralType>, NumbersOfKeywords> known;
  NumbersOfKeywords& numbers = known[{language, plural.type}];
  if (numbers.empty()) {
    numbers = numbersOfKeywords(language, plural);
  }
  return numbers;
}

// The first number that takes a keyword for which a plural lacks the branch.
struct Lack {
  std::int64_t number;
  std::string_view keyword;
};

// In the order of the numbers.
std::vector<Lack> lacksOf(const std::string& language, const PluralShape& plural) {
  const bool hasOffset = plural.offset != 0;
  const NumbersOfKeywords own =
      hasOffset ? numbersOfKeywords(language, plural) : NumbersOfKeywords();
  std::vector<Lack> lacks;
  for (const auto& [keyword, numbers] : hasOffset ? own : usualNumbers(language, plural)) {
    const auto lack = std::find_if(numbers.begin(), numbers.end(), [&](std::int64_t number) {
      return !plural.numbers.contains(static_cast<double>(number));
    });
    if (lack != numbers.end() && !plural.keywords.contains(keyword)) {
      lacks.push_back({*lack, keyword});
    }
  }
  std::sort(lacks.begin(), lacks.end(),
            [](const Lack& one, const Lack& other) { return one.number < other.number; });
  const std::string_view rare =
      orvanta::pluralKeyword(language, static_cast<double>(kMillion) - plural.offset, plural.type);
  const bool isRare = !plural.keywords.contains(rare) && !plural.numbers.contains(kMillion) &&
                      std::none_of(lacks.begin(), lacks.end(),
                                   [&](const Lack& lack) { return lack.keyword == rare; });
  if (isRare) {
    lacks.push_back({kMillion, rare});
  }
  return lacks;
}

void checkPlurals(LanguageFile& file, std::string_view key, const MessageShape& shape) {
  for (const PluralShape& plural : shape.plurals) {
    const std::string choice =
        plural.type == orvanta::PluralType::cardinal ? "the plural of " : "the ordinal of ";
    const std::string name = choice + std::string(plural.argument);
    // A pseudo-language has the branches of the language that it was made from.
    const bool isPseudo = isPseudoLanguage(file.language);
    for (const Lack& lack : isPseudo ? std::vector<Lack>() : lacksOf(file.language, plural)) {
      file.add(lack.number < kMillion ? rules::kPlural : rules::kRarePlural, key,
               name + " lacks the branch " + std::string(lack.keyword) + ", which " +
                   std::to_string(lack.number) + " takes");
    }
    for (const std::string_view keyword : plural.keywords) {
      if (std::find(kKeywords.begin(), kKeywords.end(), keyword) == kKeywords.end()) {
        file.add(rules::kMessage, key,
                 name + " has a branch " + std::string(keyword) + ", which no number takes");
      }
    }
  }
}

std::string_view kindOf(const ArgumentShape& argument) {
  return argument.isSelect ? "a select" : argument.isNumber ? "a number" : "a plain argument";
}

// A plain argument may be a number, but nothing may stand for a select.
bool fit(const ArgumentShape& one, const ArgumentShape& other) {
  return one.isSelect == other.isSelect;
}

void compareArgument(LanguageFile& file, std::string_view key, std::string_view name,
                     const ArgumentShape& english, const ArgumentShape& here) {
  if (!fit(english, here)) {
    file.add(rules::kArguments, key,
             "the argument " + std::string(name) + " is " + std::string(kindOf(here)) +
                 ", in English " + std::string(kindOf(english)));
    return;
  }
  for (const std::string_view selector : here.selectors) {
    if (!english.selectors.contains(selector)) {
      file.add(rules::kArguments, key,
               "the select of " + std::string(name) + " has a branch " + std::string(selector) +
                   ", which English does not have");
    }
  }
}

void compare(LanguageFile& file, std::string_view key, const MessageShape& english,
             const MessageShape& here) {
  for (const auto& [name, argument] : english.arguments) {
    const auto found = here.arguments.find(name);
    if (found != here.arguments.end()) {
      compareArgument(file, key, name, argument, found->second);
    } else if (!argument.isSelect) {
      // A language without genders, say, needs no select.
      file.add(rules::kArguments, key,
               "the argument " + std::string(name) + " of English is not in the message");
    }
  }
  for (const auto& [name, argument] : here.arguments) {
    if (!english.arguments.contains(name)) {
      file.add(rules::kArguments, key, "the argument " + std::string(name) + " is not in English");
    }
  }
}

void addError(LanguageFile& file, std::string_view key, std::string_view text,
              const MessageShape& shape) {
  const std::string_view before = text.substr(0, shape.error->position);
  const auto character = 1 + std::count_if(before.begin(), before.end(), [](char byte) {
                           return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
                         });
  file.add(rules::kMessage, key,
           "malformed message, at character " + std::to_string(character) + ": " +
               std::string(shape.error->reason));
}

}  // namespace

bool checkMessage(LanguageFile& file, std::string_view key, std::string_view english,
                  std::string_view text) {
  if (english.find('{') == std::string_view::npos && text.find('{') == std::string_view::npos) {
    return false;
  }
  const MessageShape here = messageShapeOf(text);
  const bool hasEnglish = english.data() != nullptr;
  const MessageShape source = hasEnglish ? messageShapeOf(english) : here;
  if (!source.isMessage && !here.isMessage) {
    return false;
  }
  if (here.error) {
    addError(file, key, text, here);
  } else {
    if (!source.error) {
      compare(file, key, source, here);
    }
    checkPlurals(file, key, here);
  }
  return true;
}

}  // namespace ovlocalize
