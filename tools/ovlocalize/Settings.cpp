#include "Settings.h"

#include <filesystem>

#include <orvanta/platform/standard/StandardPlatform.h>

namespace ovlocalize {

void installPlatform(const Settings& settings) {
  std::error_code ignored;
  if (!settings.bundle.empty() && !std::filesystem::is_directory(settings.bundle, ignored)) {
    throw Failure("no such bundle folder: " + settings.bundle);
  }
  orvanta::platform::standard::StandardOptions options;
  options.mainBundlePath = settings.bundle;
  options.cachesPath = settings.cache;
  options.deviceLanguages = settings.devices;
  options.logSink = settings.logSink;
  orvanta::platform::Platform::install(orvanta::platform::standard::makeStandardPlatform(options));
}

}  // namespace ovlocalize
