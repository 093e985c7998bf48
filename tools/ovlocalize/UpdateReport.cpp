#include "UpdateReport.h"

#include <iostream>

#include "Escaping.h"

namespace ovlocalize {

namespace {

using orvanta::StringsUpdate;

std::string_view wordFor(StringsUpdate::Result result) {
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

Json asJson(const StringsUpdate& update) {
  return {{"language", toJson(update.language)},
          {"result", wordFor(update.result)},
          {"file", toJson(update.file.path())},
          {"reason", toJson(update.reason)}};
}

void printLine(const StringsUpdate& update) {
  std::cout << oneLine(update.language) << '\t' << wordFor(update.result) << '\t'
            << oneLine(update.reason.isPresent() ? update.reason : update.file.path()) << '\n';
}

}  // namespace

void updateAndReport(const Settings& settings, const orvanta::StringsPayload& strings,
                     const std::string& namespaceName, const std::string& bundleName) {
  Settings quiet = settings;
  // The report says all that the log would, and more.
  quiet.logSink = [](std::string_view) {};
  installPlatform(quiet);
  Json array = Json::array();
  bool failed = false;
  const auto report = [&](const StringsUpdate& update) {
    failed |= update.result == StringsUpdate::Result::failed;
    if (settings.json) {
      array.push_back(asJson(update));
    } else {
      printLine(update);
    }
  };
  orvanta::OVStringCache().updateStrings(strings, namespaceName, bundleName, report);
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  if (failed) {
    throw Failure("not every table could be written");
  }
}

}  // namespace ovlocalize
