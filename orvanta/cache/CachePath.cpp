#include <algorithm>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

#include <orvanta/cache/CachePath.h>

namespace orvanta {

namespace {

using Components = std::vector<std::string_view>;

// The parts of a path with "." and ".." resolved; ".." at the root stays there.
Components componentsOf(std::string_view path) {
  Components components;
  while (!path.empty()) {
    const std::size_t slash = std::min(path.find('/'), path.size());
    const std::string_view component = path.substr(0, slash);
    if (component == "..") {
      if (!components.empty()) {
        components.pop_back();
      }
    } else if (!component.empty() && component != ".") {
      components.push_back(component);
    }
    path.remove_prefix(std::min(slash + 1, path.size()));
  }
  return components;
}

// Bounds the folders that a single name makes, each of which costs a sync and a place in every
// listing of the cache.
constexpr std::size_t kMostFolders = 16;

CachePath refused(int code, String reason) {
  return {Status(code, std::move(reason)), {}, {}};
}

}  // namespace

bool CachePath::isHidden() const noexcept {
  return std::any_of(folders.begin(), folders.end(),
                     [](const String& name) { return name.view().starts_with('.'); });
}

CachePath cachePathOf(const URL& file, const URL& cacheFolder) {
  if (cacheFolder.isAbsent()) {
    return refused(ENOENT, "there is no caches directory"_s);
  }
  if (file.isAbsent()) {
    return refused(EINVAL, "no URL can hold this language's name"_s);
  }
  const String filePath = pathToWrite(file);
  const String folderPath = cacheFolder.path();
  if (filePath.size() >= PATH_MAX) {
    return refused(ENAMETOOLONG, "the language's name is too long"_s);
  }
  const Components outer = componentsOf(folderPath.view());
  const Components whole = componentsOf(filePath.view());
  // A table lies in a language's folder, which lies in the cache folder.
  if (filePath.isAbsent() || folderPath.isAbsent() || whole.size() < outer.size() + 2 ||
      !std::equal(outer.begin(), outer.end(), whole.begin())) {
    return refused(EPERM, "the file would not be inside the cache folder"_s);
  }
  if (whole.size() - outer.size() - 1 > kMostFolders) {
    return refused(ENAMETOOLONG, "the language's name has too many parts"_s);
  }
  CachePath path;
  path.folders.assign(whole.begin() + static_cast<std::ptrdiff_t>(outer.size()), whole.end() - 1);
  path.file = whole.back();
  if (std::any_of(path.folders.begin(), path.folders.end() - 1, [](const String& name) {
        return name.view().ends_with(kLanguageFolderExtension);
      })) {
    return refused(EPERM, "the file would be inside another language's folder"_s);
  }
  return path;
}

String pathToWrite(const URL& file) {
  const bool hasPathOnly =
      file.absoluteString().view().find_first_of("?#") == std::string_view::npos;
  return hasPathOnly ? file.path() : String();
}

}  // namespace orvanta
