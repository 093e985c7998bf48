#include <iostream>
#include <memory>

#include <orvanta/cache/OVStringCache.h>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"
#include "FileContents.h"
#include "Json.h"
#include "JsonPayload.h"

namespace ovlocalize {

namespace {

using orvanta::StringsUpdate;

/// Where the tables are in a service's answer, and the file that holds the answer ("-": standard
/// input).
struct Download {
  std::string bundleName;
  std::string namespaceName;
  std::string file;
};

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

Json toJson(const StringsUpdate& update) {
  return {{"language", ovlocalize::toJson(update.language)},
          {"result", wordFor(update.result)},
          {"file", ovlocalize::toJson(update.file.path())},
          {"reason", ovlocalize::toJson(update.reason)}};
}

void printLine(const StringsUpdate& update) {
  std::cout << oneLine(update.language) << '\t' << wordFor(update.result) << '\t'
            << oneLine(update.reason.isPresent() ? update.reason : update.file.path()) << '\n';
}

// Fails when a language's table could not be written.
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

}  // namespace

void addUpdate(CommandLine& commands) {
  const auto download = std::make_shared<Download>();
  CLI::App& command =
      commands.add("update",
                   "Write downloaded tables into the cache. The file holds an object from\n"
                   "language to payload; the table of a payload is under B.N.zantorData",
                   "  ovlocalize update --bundle-name app --namespace main strings.json",
                   [download](const Settings& settings) { return update(settings, *download); });
  command.add_option("--bundle-name", download->bundleName, "B, the first level of a payload")
      ->required()
      ->type_name("B");
  command.add_option("--namespace", download->namespaceName, "N, the second level of a payload")
      ->required()
      ->type_name("N");
  command.add_option("file", download->file, "The JSON file, or - for standard input")
      ->required()
      ->check(refuseEmpty)
      ->type_name("FILE.json");
}

}  // namespace ovlocalize
