#include <filesystem>
#include <string_view>
#include <system_error>

#include <orvanta/standard/ApplicationPaths.h>
#include <orvanta/text/PathString.h>

namespace orvanta::standard {

String executablePath() {
  // What Linux appends when the file was replaced while it runs.
  constexpr std::string_view kReplaced = " (deleted)";
  std::error_code error;
  std::string path = std::filesystem::read_symlink("/proc/self/exe", error).string();
  if (error || path.empty()) {
    return {};
  }
  if (path.ends_with(kReplaced) && !std::filesystem::exists(path, error)) {
    path.resize(path.size() - kReplaced.size());
  }
  return path;
}

String absolutePath(const std::string& path) {
  if (path.empty()) {
    return {};
  }
  std::error_code error;
  const std::string absolute = std::filesystem::absolute(path, error).string();
  return error ? String() : String(absolute);
}

String cachesPathOf(const String& executable, const Environment& environment) {
  if (executable.isAbsent()) {
    return {};
  }
  String caches = environment("XDG_CACHE_HOME");
  if (!caches.view().starts_with('/')) {
    const String home = environment("HOME");
    if (!home.view().starts_with('/')) {
      return {};
    }
    caches = path::stringByAppendingPathComponent(home, ".cache");
  }
  return path::stringByAppendingPathComponent(caches, path::lastPathComponent(executable).view());
}

}  // namespace orvanta::standard
