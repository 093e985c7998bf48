// Messages with one plural and one text argument. The floor is ICU's MessageFormat, constructed
// beforehand in one row, and for each message in the other.
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <unicode/msgfmt.h>

#include <orvanta/messages/LocalizedMessages.h>

#include "contenders/Application.h"
#include "data/TableForms.h"
#include "rows/Questions.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kMessages = 1'000;
constexpr std::string_view kName = "Ada Lovelace";

int countOf(std::size_t message) {
  return static_cast<int>(message % 200);
}

// French patterns under the keys of the other rows, and the expected messages.
struct Messages {
  Messages() {
    for (std::size_t at = 0; at < kMessages; ++at) {
      const std::string thing = "fichier" + std::to_string(at);
      patterns.push_back({keys[at], "{count, plural, one {# " + thing + "} many {# de " + thing +
                                        "s} other {# " + thing + "s}} pour {name}."});
      const int count = countOf(at);
      texts.push_back(std::to_string(count) + ' ' + thing + (count < 2 ? "" : "s") + " pour " +
                      std::string(kName) + '.');
    }
  }

  std::vector<std::string> keys = makeKeys(kMessages);
  Table patterns;
  std::vector<std::string> texts;
};

template <typename Make, typename Text>
Contender makingAll(std::string_view name, const Messages& messages, Make make, Text text) {
  using Result = decltype(make(std::size_t{0}));
  const auto results = std::make_shared<std::vector<Result>>(kMessages);
  const auto round = [results, make] {
    for (std::size_t at = 0; at < kMessages; ++at) {
      (*results)[at] = make(at);
    }
    keep(results->data());
  };
  const auto check = [results, round, text, &messages] {
    round();
    for (std::size_t at = 0; at < kMessages; ++at) {
      expectText(text((*results)[at]), messages.texts[at], messages.keys[at]);
    }
  };
  return {std::string(name), check, round};
}

::icu::MessageFormat icuFormat(const std::string& pattern) {
  UErrorCode status = U_ZERO_ERROR;
  ::icu::MessageFormat format(::icu::UnicodeString::fromUTF8(pattern), ::icu::Locale("fr"), status);
  if (U_FAILURE(status)) {
    throw std::runtime_error("ICU refuses " + pattern);
  }
  return format;
}

::icu::UnicodeString icuMessage(const ::icu::MessageFormat& format, int count) {
  static const ::icu::UnicodeString names[] = {"count", "name"};
  const ::icu::Formattable values[] = {
      count, ::icu::UnicodeString::fromUTF8({kName.data(), static_cast<int>(kName.size())})};
  UErrorCode status = U_ZERO_ERROR;
  ::icu::UnicodeString text;
  format.format(names, values, 2, text, status);
  return text;
}

std::string utf8(const ::icu::UnicodeString& text) {
  std::string bytes;
  return text.toUTF8String(bytes);
}

Contender icuPrebuilt(const Messages& messages) {
  const auto formats = std::make_shared<std::vector<::icu::MessageFormat>>();
  for (const Entry& entry : messages.patterns) {
    formats->push_back(icuFormat(std::string(entry.value)));
  }
  return makingAll(
      kFloor, messages,
      [formats](std::size_t at) { return icuMessage((*formats)[at], countOf(at)); }, utf8);
}

Contender icuBuiltEachTime(const Messages& messages) {
  return makingAll(
      kFloor, messages,
      [&messages](std::size_t at) {
        return icuMessage(icuFormat(std::string(messages.patterns[at].value)), countOf(at));
      },
      utf8);
}

Contender ours(const Messages& messages, Localizer& localizer) {
  return makingAll(
      kOurs, messages,
      [&messages, &localizer](std::size_t at) {
        return localizedMessageForKey(localizer, messages.keys[at],
                                      {{"count", countOf(at)}, {"name", kName}});
      },
      [](const String& text) { return text.view(); });
}

}  // namespace

void messageRows(Bench& bench) {
  const ScratchFolder folder = bench.folder("message");
  const Messages messages;
  const Application application(folder.path());
  application.ship("fr", messages.patterns, textFormUtf8);
  application.ship("en", makeTable(languageNamed("en"), makeKeys(10)), textFormUtf8);
  platform::Platform::install(application.makePlatform("fr"));
  Localizer localizer;
  for (const bool isPrebuilt : {true, false}) {
    Row row{.name = isPrebuilt ? "message" : "message-built",
            .operations = kMessages,
            .samples = 31,
            .warmUp = true,
            .goal = isPrebuilt ? 0.5 : 0.1};
    row.mostAllocations = 1;
    row.contenders = {isPrebuilt ? icuPrebuilt(messages) : icuBuiltEachTime(messages),
                      ours(messages, localizer)};
    bench.run(row);
  }
}

}  // namespace orvanta::bench
