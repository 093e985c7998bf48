#include "Settings.h"

#include <filesystem>
#include <iostream>

#include <orvanta/standard/StandardPlatform.h>

#include "Escaping.h"

namespace ovlocalize {

void installPlatform(const Settings& settings) {
  std::error_code ignored;
  if (!settings.bundle.empty() && !std::filesystem::is_directory(settings.bundle, ignored)) {
    throw Failure("no such bundle folder: " + settings.bundle);
  }
  orvanta::standard::StandardOptions options;
  options.mainBundlePath = settings.bundle;
  options.cachesPath = settings.cache;
  options.deviceLanguages = settings.devices;
  options.logSink = settings.logSink;
  if (!options.logSink) {
    options.logSink = [](std::string_view line) { std::cerr << escaped(line) << '\n'; };
  }
  orvanta::platform::Platform::install(orvanta::standard::makeStandardPlatform(options));
}

}  // namespace ovlocalize
