#include <cctype>
#include <map>

#include <orvanta/messages/Placeholders.h>

#include "Rules.h"

namespace ovlocalize {

namespace {

using orvanta::Placeholder;

// What the argument of a conversion has to be.
std::string_view familyOf(char conversion) {
  switch (conversion) {
    case '@':
      return "an object (%@)";
    case 's':
    case 'S':
      return "a text (%s)";
    case 'c':
    case 'C':
      return "a character (%c)";
    case 'f':
    case 'F':
    case 'e':
    case 'E':
    case 'g':
    case 'G':
      return "a real number (%f)";
    default:
      return "an integer (%d)";
  }
}

bool isAlphanumeric(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

// "100%ig" and "50%off" hold a percentage, not a placeholder.
bool isPercentage(std::string_view text, const Placeholder& found) {
  const std::size_t end = found.begin + found.size;
  return !found.isPositioned && found.conversion != '@' && found.begin > 0 &&
         std::isdigit(static_cast<unsigned char>(text[found.begin - 1])) != 0 &&
         end < text.size() && isAlphanumeric(text[end]);
}

using Families = std::map<std::size_t, std::string_view>;

// The family of each argument, by position.
Families familiesIn(std::string_view text) {
  Families families;
  orvanta::PlaceholderReader placeholders(text);
  while (const auto found = placeholders.next()) {
    if (!found->isPercent() && !isPercentage(text, *found)) {
      families.emplace(found->argument, familyOf(found->conversion));
    }
  }
  return families;
}

}  // namespace

void checkPlaceholders(LanguageFile& file, std::string_view key, std::string_view english,
                       std::string_view text) {
  const Families wanted = familiesIn(english);
  const Families found = familiesIn(text);
  const auto number = [](std::size_t argument) { return std::to_string(argument + 1); };
  for (const auto& [argument, family] : wanted) {
    const auto here = found.find(argument);
    if (here == found.end()) {
      file.add(rules::kPlaceholders, key,
               "placeholder " + number(argument) + " of English, " + std::string(family) +
                   ", is not in the text");
    } else if (here->second != family) {
      file.add(rules::kPlaceholders, key,
               "placeholder " + number(argument) + " is " + std::string(here->second) +
                   ", in English it is " + std::string(family));
    }
  }
  for (const auto& [argument, family] : found) {
    if (!wanted.contains(argument)) {
      file.add(
          rules::kPlaceholders, key,
          "placeholder " + number(argument) + ", " + std::string(family) + ", is not in English");
    }
  }
}

}  // namespace ovlocalize
