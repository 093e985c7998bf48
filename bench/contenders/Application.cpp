#include "contenders/Application.h"

#include <utility>

#include <orvanta/standard/StandardPlatform.h>

#include "harness/Files.h"

namespace orvanta::bench {

void Application::ship(std::string_view language, const Table& table, TableForm form) const {
  writeFile(tableFile(language), form(table));
}

std::filesystem::path Application::languageFolder(std::string_view language) const {
  return folder_ / "Bundle" / (std::string(language) + ".lproj");
}

std::filesystem::path Application::tableFile(std::string_view language) const {
  return languageFolder(language) / "Localizable.strings";
}

platform::Platform Application::makePlatform(std::string_view language,
                                             std::shared_ptr<standard::RunLoop> loop) const {
  standard::StandardOptions options;
  options.mainBundlePath = folder_ / "Bundle";
  options.cachesPath = cachesFolder();
  options.deviceLanguages = {std::string(language)};
  options.systemVersion = platform::OperatingSystemVersion{9, 0, 0};
  options.logSink = [](std::string_view) {};
  platform::Platform replacements;
  replacements.mainQueue = std::move(loop);
  return standard::makeStandardPlatform(options, std::move(replacements));
}

}  // namespace orvanta::bench
