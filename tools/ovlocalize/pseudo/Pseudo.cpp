#include <memory>

#include <orvanta/locale/OVLocale.h>
#include <orvanta/text/StringsPayload.h>

#include "../CommandLine.h"
#include "../Commands.h"
#include "../Escaping.h"
#include "../Tables.h"
#include "../UpdateReport.h"
#include "PseudoText.h"

namespace ovlocalize {

namespace {

using orvanta::String;
using orvanta::StringsPayload;

struct PseudoRequest {
  std::string from = "en";
  std::string to;
};

// The levels of a payload, whose names nobody sees.
constexpr const char* kBundle = "ovlocalize";
constexpr const char* kNamespace = "pseudo";

PseudoKind kindOf(const std::string& language) {
  return language.ends_with("-XB") ? PseudoKind::kRightToLeft : PseudoKind::kAccented;
}

// Source text of the strings format, which an update writes as it is.
String source(std::string_view text) {
  const std::string token = quoted(text);
  return std::string_view(token).substr(1, token.size() - 2);
}

// The pseudo-language goes by its own name, and stands in for no other language.
StringsPayload tableOf(const orvanta::strings::StringTable& table, const std::string& language) {
  StringsPayload payload = StringsPayload::dictionary();
  for (const auto& [key, text] : table.entries()) {
    if (key == orvanta::OVOrvantaLanguageAppleIDKey) {
      payload.add(source(key), String(language));
    } else if (key == orvanta::OVOrvantaLanguageEquivalentsKey) {
      continue;
    } else if (isConfigurationKey(key)) {
      payload.add(source(key), source(text));
    } else {
      payload.add(source(key), source(pseudoText(text, kindOf(language))));
    }
  }
  return payload;
}

StringsPayload wrapped(const char* key, StringsPayload value) {
  StringsPayload payload = StringsPayload::dictionary();
  payload.add(key, std::move(value));
  return payload;
}

int pseudo(const Settings& settings, const PseudoRequest& request) {
  const auto table = tableOfLanguage(settings, request.from);
  StringsPayload strings = StringsPayload::dictionary();
  strings.add(
      String(request.to),
      wrapped(kBundle, wrapped(kNamespace, wrapped("zantorData", tableOf(*table, request.to)))));
  updateAndReport(settings, strings, kNamespace, kBundle);
  return 0;
}

std::string refuseOther(const std::string& language) {
  return isPseudoLanguage(language) ? "" : "its region must be XA (accents) or XB (right to left)";
}

}  // namespace

void addPseudo(CommandLine& commands) {
  const auto request = std::make_shared<PseudoRequest>();
  CLI::App& command = commands.add(
      "pseudo",
      "Write a pseudo-language into the cache: every text of a language with accents, 40 %\n"
      "longer and in brackets (en-XA), or turned from right to left (ar-XB). It shows texts\n"
      "that are not localized, cut off or put together, before there is a translation",
      "  ovlocalize --bundle demo/bundle --cache ~/.cache/myapp pseudo --to en-XA\n"
      "  ovlocalize --bundle demo/bundle --cache ~/.cache/myapp pseudo --from en --to ar-XB",
      [request](const Settings& settings) { return pseudo(settings, *request); });
  command.add_option("--from", request->from, "The language whose texts are taken (default: en)")
      ->check(refuseEmpty)
      ->type_name("ID");
  command
      .add_option("--to", request->to, "The pseudo-language: an identifier with region XA or XB")
      ->required()
      ->check(refuseOther)
      ->type_name("ID");
}

}  // namespace ovlocalize
