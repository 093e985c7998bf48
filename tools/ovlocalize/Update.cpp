#include <iostream>

#include <orvanta/cache/OVStringCache.h>

#include "Commands.h"
#include "FileContents.h"
#include "PayloadFromJson.h"

namespace ovlocalize {

namespace {

using orvanta::StringsUpdate;

// Without the library's own "[json.exception.parse_error.101] ".
std::string_view reasonOf(const Json::exception& error) {
  constexpr std::string_view kEndOfNumber = "] ";
  const std::string_view message = error.what();
  const std::size_t end = message.find(kEndOfNumber);
  return message.starts_with('[') && end != std::string_view::npos
             ? message.substr(end + kEndOfNumber.size())
             : message;
}

Json parse(const std::string& file) {
  Json json;
  try {
    json = Json::parse(contentsOf(file));
  } catch (const Json::exception& error) {
    throw Failure(nameOf(file) + " is no JSON: " + std::string(reasonOf(error)));
  }
  if (!json.is_object()) {
    throw Failure(nameOf(file) + " is no JSON object from language to payload");
  }
  return json;
}

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

void printForPeople(const StringsUpdate& update) {
  std::cout << update.language << '\t' << nameOf(update.result) << '\t'
            << (update.reason.isPresent() ? update.reason : update.file.path()) << '\n';
}

}  // namespace

int update(const Settings& settings, const Download& download) {
  Settings quiet = settings;
  // The report below says all that the log would, and more.
  quiet.logSink = [](std::string_view) {};
  installPlatform(quiet);
  const orvanta::StringsPayload strings = payloadFromJson(parse(download.file));
  Json array = Json::array();
  bool failed = false;
  orvanta::OVStringCache().updateStrings(strings, download.namespaceName, download.bundleName,
                                         [&](const StringsUpdate& update) {
                                           failed |= update.result == StringsUpdate::Result::failed;
                                           if (settings.json) {
                                             array.push_back(toJson(update));
                                           } else {
                                             printForPeople(update);
                                           }
                                         });
  if (settings.json) {
    std::cout << printed(array) << '\n';
  }
  if (failed) {
    throw Failure("not every table could be written");
  }
  return 0;
}

}  // namespace ovlocalize
