#include "Settings.h"

#include <filesystem>

#include <orvanta/standard/StandardPlatform.h>

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
  orvanta::platform::Platform::install(orvanta::standard::makeStandardPlatform(options));
}

}  // namespace ovlocalize
