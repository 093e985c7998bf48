#include <memory>

#include "CommandLine.h"
#include "Commands.h"
#include "FileContents.h"
#include "JsonPayload.h"
#include "UpdateReport.h"

namespace ovlocalize {

namespace {

/// Where the tables are in a service's answer, and the file that holds the answer ("-": standard
/// input).
struct Download {
  std::string bundleName;
  std::string namespaceName;
  std::string file;
};

int update(const Settings& settings, const Download& download) {
  const orvanta::StringsPayload strings =
      payloadFromJson(contentsOf(download.file), nameOf(download.file));
  updateAndReport(settings, strings, download.namespaceName, download.bundleName);
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
