#include <filesystem>

#include <orvanta/cache/OVStringCache.h>

#include "CommandLine.h"
#include "Commands.h"

namespace ovlocalize {

namespace {

int clear(const Settings& settings) {
  Settings listening = settings;
  std::string problem;
  listening.logSink = [&](std::string_view line) { problem = line; };
  installPlatform(listening);
  orvanta::OVStringCache cache;
  cache.clearCache();
  const std::string folder = cache.cacheDirectoryURL().path().str();
  std::error_code ignored;
  if (!std::filesystem::is_directory(folder, ignored)) {
    throw Failure(folder.empty() ? "there is no caches directory"
                                 : "there is no cache folder, and none can be made: " + folder);
  }
  if (!problem.empty()) {
    throw Failure("not everything could be deleted from " + folder + ": " + problem);
  }
  return 0;
}

}  // namespace

void addClear(CommandLine& commands) {
  commands.add("clear", "Delete every downloaded table",
               "  ovlocalize --cache ~/.cache/myapp clear", clear);
}

}  // namespace ovlocalize
