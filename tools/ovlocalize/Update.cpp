#include <iostream>

#include <orvanta/cache/OVStringCache.h>

#include "Commands.h"
#include "Escaping.h"
#include "FileContents.h"
#include "Json.h"
#include "JsonPayload.h"

namespace ovlocalize {

namespace {

using orvanta::StringsUpdate;

std::string_view nameOf(StringsUpdate::Result result) {
  switch (result) {
    case StringsUpdate::Result::written:
      return "written";
    case StringsUpdate::Result::skipped:
      return "skipped";
    case StringsUpdate::Result::failed:
      break;
  }
  return "failed";
}

Json toJson(const StringsUpdate& update) {
  return {{"language", ovlocalize::toJson(update.language)},
          {"result", nameOf(update.result)},
          {"file", ovlocalize::toJson(update.file.path())},
          {"reason", ovlocalize::toJson(update.reason)}};
}

void printLine(const StringsUpdate& update) {
  std::cout << oneLine(update.language) << '\t' << nameOf(update.result) << '\t'
            << oneLine(update.reason.isPresent() ? update.reason : update.file.path()) << '\n';
}

}  // namespace

int update(const Settings& settings, const Download& download) {
  Settings quiet = settings;
  // The report below says all that the log would, and more.
  quiet.logSink = [](std::string_view) {};
  installPlatform(quiet);
  const orvanta::StringsPayload strings =
      payloadFromJson(contentsOf(download.file), nameOf(download.file));
  Json array = Json::array();
  bool failed = false;
  const auto report = [&](const StringsUpdate& update) {
    failed |= update.result == StringsUpdate::Result::failed;
    if (settings.json) {
      array.push_back(toJson(update));
    } else {
      printLine(update);
    }
  };
  orvanta::OVStringCache().updateStrings(strings, download.namespaceName, download.bundleName,
                                         report);
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  if (failed) {
    throw Failure("not every table could be written");
  }
  return 0;
}

}  // namespace ovlocalize
