// Resolving requests against the 40 languages.
#include <string>

#include <unicode/localematcher.h>
#include <unicode/locid.h>

#include <orvanta/locale/Localizer.h>

#include "contenders/Application.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/LoadedLanguages.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

struct Request {
  std::string_view asked;
  std::string_view ours;  ///< Empty where nothing suits.
  std::string_view icus;  ///< "en", its default, where nothing suits.
};

// Exact languages, regions, regional fallbacks, scripts, unknown languages, blanks.
constexpr Request kRequests[] = {
    {"fr", "fr", "fr"},
    {"fr-CA", "fr-CA", "fr"},
    {"en-NZ", "en-AU", "en"},
    {"zh-TW", "zh-Hant", "zh_Hant"},
    {"zh-CN", "zh-Hans", "zh_Hans"},
    {"pt-AO", "pt-PT", "pt_PT"},
    {"pt-BR", "pt-BR", "pt_BR"},
    {"sw", "", "en"},
    {"de-AT", "de-AT", "de"},
    {"ja", "ja", "ja"},
    {"ar-EG", "ar-EG", "ar"},
    {"zh-Hant-HK", "zh-Hans", "zh_Hant"},
    {"ka-GE", "", "en"},
    {"ru-UA", "ru-UA", "ru"},
    {"ko-KR", "ko-KR", "ko"},
    {" it ", "it", "it"},
};

[[nodiscard]] const Request& requestNumber(std::size_t number) {
  return kRequests[number % std::size(kRequests)];
}

std::string_view trimmed(std::string_view text) {
  while (text.starts_with(' ')) {
    text.remove_prefix(1);
  }
  while (text.ends_with(' ')) {
    text.remove_suffix(1);
  }
  return text;
}

// Lists of `length` requests; one list begins with each of the requests.
template <typename Item, typename Make>
std::vector<std::vector<Item>> makeLists(std::size_t length, Make make) {
  std::vector<std::vector<Item>> lists(std::size(kRequests));
  for (std::size_t start = 0; start < lists.size(); ++start) {
    for (std::size_t at = 0; at < length; ++at) {
      lists[start].push_back(make(requestNumber(start + at)));
    }
  }
  return lists;
}

Contender matchOurs(Localizer& localizer, std::size_t length) {
  std::vector<StringList> lists;
  for (const auto& list :
       makeLists<String>(length, [](const Request& request) { return String(request.asked); })) {
    lists.emplace_back(list);
  }
  const auto round = [lists, &localizer] {
    for (const StringList& list : lists) {
      keep(localizer.availableLocalesFromArray(list));
    }
  };
  const auto check = [lists, length, &localizer] {
    for (std::size_t start = 0; start < lists.size(); ++start) {
      const StringList matched = localizer.availableLocalesFromArray(lists[start]);
      std::size_t next = 0;
      for (std::size_t at = 0; at < length; ++at) {
        const Request& request = requestNumber(start + at);
        if (!request.ours.empty()) {
          expect(next < matched.size(), "too few languages");
          expectText(matched[next++].view(), request.ours, request.asked);
        }
      }
      expect(next == matched.size(), "too many languages");
    }
  };
  return {std::string(kOurs), check, round};
}

::icu::LocaleMatcher makeMatcher() {
  UErrorCode status = U_ZERO_ERROR;
  ::icu::LocaleMatcher::Builder builder;
  for (const Language& language : shippedLanguages()) {
    builder.addSupportedLocale(::icu::Locale(icuLocale(language.name).c_str()));
  }
  const ::icu::Locale english("en");
  builder.setDefaultLocale(&english);
  ::icu::LocaleMatcher matcher = builder.build(status);
  expect(U_SUCCESS(status) != 0, "no matcher");
  return matcher;
}

// The requests are converted to locales beforehand and resolved one by one, because the matcher's
// answer to a list is one language.
Contender matchIcu(std::size_t length) {
  const auto lists = makeLists<::icu::Locale>(length, [](const Request& request) {
    return ::icu::Locale(icuLocale(trimmed(request.asked)).c_str());
  });
  const auto matcher = std::make_shared<::icu::LocaleMatcher>(makeMatcher());
  const auto round = [lists, matcher] {
    UErrorCode status = U_ZERO_ERROR;
    for (const auto& list : lists) {
      for (const ::icu::Locale& locale : list) {
        keep(matcher->getBestMatch(locale, status));
      }
    }
  };
  const auto check = [lists, matcher, length] {
    UErrorCode status = U_ZERO_ERROR;
    for (std::size_t start = 0; start < lists.size(); ++start) {
      for (std::size_t at = 0; at < length; ++at) {
        const Request& request = requestNumber(start + at);
        const ::icu::Locale* best = matcher->getBestMatch(lists[start][at], status);
        expect(best != nullptr, "no answer");
        expectText(best->getName(), request.icus, request.asked);
      }
    }
  };
  return {std::string(kFloor), check, round};
}

}  // namespace

void matchRows(Bench& bench) {
  const ScratchFolder folder = bench.folder("match");
  const Application application(folder.path());
  for (const Language& language : shippedLanguages()) {
    application.ship(language.name, makeTable(language, makeKeys(1)), textFormUtf8);
  }
  platform::Platform::install(application.makePlatform("en"));
  Localizer localizer;

  struct Length {
    const char* name;
    std::size_t requests;
    std::optional<double> goal;
  };
  for (const Length& length :
       {Length{"match", 1, 0.1}, Length{"match-10", 10, {}}, Length{"match-100", 100, {}}}) {
    Row row{.name = length.name, .operations = std::size(kRequests), .goal = length.goal};
    row.warmUp = true;
    row.passes = 200 / length.requests;
    row.samples = 31;
    row.amount = Amount{static_cast<double>(length.requests), "requests"};
    row.contenders = {matchIcu(length.requests), matchOurs(localizer, length.requests)};
    bench.run(row);
  }
}

}  // namespace orvanta::bench
