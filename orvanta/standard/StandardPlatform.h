#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/platform/Platform.h>

namespace orvanta::standard {

/// What the standard platform is told about its application. Paths may be relative to the working
/// directory at the time of the call. Each member has an initializer, so that compilers do not warn
/// of those that an application leaves out.
struct StandardOptions {
  /// The main bundle's folder. Empty: the folder of the running executable.
  std::string mainBundlePath{};

  /// The folder that holds, or will hold, the application's caches. Empty: a folder named after
  /// the executable in `$XDG_CACHE_HOME`, or in `~/.cache`.
  std::string cachesPath{};

  /// The folder with the library's own resources, the Arabic fonts. Empty: the folder
  /// "share/orvanta/resources" near the library's file, or near the program's. To be set by a
  /// program that is linked statically and keeps them elsewhere.
  std::string resourcesPath{};

  /// The device's languages, best first. Absent: what `LANGUAGE`, `LC_ALL`, `LC_MESSAGES` and
  /// `LANG` say.
  std::optional<std::vector<std::string>> deviceLanguages{};

  /// The version that the system reports. Absent: the running kernel's.
  std::optional<platform::OperatingSystemVersion> systemVersion{};

  /// Takes each log message, on any thread. What it throws is dropped. Absent: standard error.
  std::function<void(std::string_view message)> logSink{};
};

/// The platform made of the C++ standard library and the system's files alone. Members that are
/// present in `replacements` are taken instead of the standard ones, also by the standard ones:
/// bundles read through a replaced file manager.
[[nodiscard]] ORVANTA_EXPORT platform::Platform makeStandardPlatform(
    const StandardOptions& options = {}, platform::Platform replacements = {});

}  // namespace orvanta::standard
