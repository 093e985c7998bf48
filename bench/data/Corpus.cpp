#include "data/Corpus.h"

#include <string_view>
#include <unordered_set>

#include <orvanta/text/Utf8.h>

#include "data/Random.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kShortestKey = 20;
constexpr std::size_t kLongestKey = 60;
constexpr std::size_t kShortestValue = 20;
constexpr std::size_t kLongestValue = 120;

constexpr std::string_view kAreas[] = {
    "account", "alerts",  "billing",  "calendar", "camera",   "cart",    "chat",    "checkout",
    "contact", "devices", "download", "editor",   "feed",     "gallery", "help",    "home",
    "invite",  "library", "login",    "map",      "message",  "orders",  "payment", "player",
    "privacy", "profile", "search",   "security", "settings", "share",   "store",   "upload"};

constexpr std::string_view kWords[] = {
    "accept",  "action",   "address",  "again",   "amount",  "archive", "badge",   "banner",
    "body",    "button",   "cancel",   "caption", "change",  "confirm", "content", "copy",
    "current", "date",     "default",  "delete",  "detail",  "dialog",  "done",    "edit",
    "email",   "empty",    "error",    "expired", "field",   "filter",  "footer",  "group",
    "header",  "hint",     "icon",     "image",   "info",    "invalid", "item",    "label",
    "limit",   "link",     "list",     "loading", "member",  "menu",    "name",    "network",
    "new",     "next",     "note",     "number",  "offline", "old",     "open",    "option",
    "page",    "password", "pending",  "phone",   "photo",   "plan",    "price",   "prompt",
    "quota",   "reason",   "remove",   "reset",   "result",  "retry",   "save",    "section",
    "select",  "send",     "sent",     "sheet",   "size",    "sort",    "start",   "state",
    "status",  "step",     "subtitle", "success", "summary", "tab",     "text",    "time",
    "title",   "toast",    "toggle",   "total",   "unit",    "user",    "value",   "warning"};

template <std::size_t size>
std::string_view pick(Random& random, const std::string_view (&words)[size]) {
  return words[random.below(size)];
}

std::string makeKey(Random& random) {
  const std::size_t length = random.between(kShortestKey, kLongestKey);
  std::string key(pick(random, kAreas));
  while (key.size() < length) {
    key += '.';
    key += pick(random, kWords);
  }
  key.resize(length, 'x');
  if (key.back() == '.') {
    key.back() = 's';
  }
  return key;
}

char32_t makeLetter(Random& random, const Language& language, bool accents) {
  if (accents && !language.accented.empty() && random.percent(12)) {
    return language.accented[random.below(language.accented.size())];
  }
  const std::size_t letters = language.lastLetter - language.firstLetter + std::size_t{1};
  return language.firstLetter + static_cast<char32_t>(random.below(letters));
}

std::u32string makeWord(Random& random, const Language& language, bool accents) {
  if (random.percent(3)) {
    return random.percent(50) ? U"%@" : U"%1$d";
  }
  std::u32string word;
  for (std::size_t left = random.between(2, 9); left > 0; --left) {
    word += makeLetter(random, language, accents);
  }
  return word;
}

std::u32string_view wordGap(Random& random, const Language& language) {
  if (random.percent(1)) {
    return U"\n";
  }
  if (language.spaced) {
    return random.percent(10) ? U", " : U" ";
  }
  return random.percent(30) ? U"、" : U"";
}

std::string makeValue(Random& random, const Language& language) {
  constexpr std::u32string_view kSymbols = U"\U0001F600\U0001F389\U0001F44D\u2013\u2026\u20AC";
  const std::size_t length = random.between(kShortestValue, kLongestValue);
  const bool accents = random.percent(80);
  std::u32string value;
  while (value.size() < length) {
    value += makeWord(random, language, accents);
    value += wordGap(random, language);
  }
  value.resize(length);
  value.back() = random.percent(6) ? kSymbols[random.below(kSymbols.size())] : U'.';
  std::string text;
  for (const char32_t character : value) {
    utf8::append(text, character);
  }
  return text;
}

}  // namespace

std::vector<std::string> makeKeys(std::size_t count) {
  Random random("keys");
  std::unordered_set<std::string> known;
  known.reserve(count);
  std::vector<std::string> keys;
  keys.reserve(count);
  while (keys.size() < count) {
    std::string key = makeKey(random);
    if (known.insert(key).second) {
      keys.push_back(std::move(key));
    }
  }
  return keys;
}

Table makeTable(const Language& language, const std::vector<std::string>& keys) {
  Random random(language.name);
  Table table;
  table.reserve(keys.size());
  for (const std::string& key : keys) {
    table.push_back({key, makeValue(random, language)});
  }
  return table;
}

std::size_t textBytes(const Table& table) {
  std::size_t bytes = 0;
  for (const Entry& entry : table) {
    bytes += entry.key.size() + entry.value.size();
  }
  return bytes;
}

}  // namespace orvanta::bench
