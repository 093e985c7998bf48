#include <utility>

#include <orvanta/standard/ApplicationPaths.h>
#include <orvanta/standard/DeviceLanguages.h>
#include <orvanta/standard/LibraryResources.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardBundles.h>
#include <orvanta/standard/StandardFiles.h>
#include <orvanta/standard/StandardFonts.h>
#include <orvanta/standard/StandardLocaleData.h>
#include <orvanta/standard/StandardLog.h>
#include <orvanta/standard/StandardNotificationCenter.h>
#include <orvanta/standard/StandardPlatform.h>
#include <orvanta/standard/StandardProcessInfo.h>
#include <orvanta/text/PathString.h>

namespace orvanta::standard {

namespace {

String cachesPathFor(const StandardOptions& options) {
  return options.cachesPath.empty() ? cachesPathOf(executablePath(), processEnvironment())
                                    : absolutePath(options.cachesPath);
}

String mainBundlePathFor(const StandardOptions& options) {
  if (!options.mainBundlePath.empty()) {
    return absolutePath(options.mainBundlePath);
  }
  const String executable = executablePath();
  return executable.isPresent() ? path::stringByDeletingLastPathComponent(executable)
                                : absolutePath(".");
}

String resourcesPathFor(const StandardOptions& options) {
  return options.resourcesPath.empty() ? libraryResourcesPath()
                                       : absolutePath(options.resourcesPath);
}

StringList deviceLanguagesFor(const StandardOptions& options) {
  if (!options.deviceLanguages) {
    return deviceLanguagesOf(processEnvironment());
  }
  return StringList(
      std::vector<String>(options.deviceLanguages->begin(), options.deviceLanguages->end()));
}

}  // namespace

platform::Platform makeStandardPlatform(const StandardOptions& options,
                                        platform::Platform replacements) {
  platform::Platform platform = std::move(replacements);
  if (platform.files == nullptr) {
    platform.files = makeFileManager(cachesPathFor(options));
  }
  if (platform.locales == nullptr) {
    platform.locales = makeLocaleData(deviceLanguagesFor(options));
  }
  if (platform.bundles == nullptr) {
    platform.bundles = makeBundleRegistry(platform.files, platform.locales,
                                          mainBundlePathFor(options), resourcesPathFor(options));
  }
  if (platform.fonts == nullptr) {
    platform.fonts = makeStandardFonts();
  }
  if (platform.notifications == nullptr) {
    platform.notifications = makeNotificationCenter();
  }
  if (platform.mainQueue == nullptr) {
    platform.mainQueue = RunLoop::main();
  }
  if (platform.processInfo == nullptr) {
    platform.processInfo = makeProcessInfo(options.systemVersion.value_or(kernelVersion()));
  }
  if (platform.log == nullptr) {
    platform.log = makeLog(options.logSink);
  }
  return platform;
}

}  // namespace orvanta::standard
