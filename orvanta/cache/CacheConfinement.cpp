#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/cache/CacheConfinement.h>

namespace orvanta {

namespace {

using Components = std::vector<std::string_view>;

// The path's parts with "." dropped and ".." taken back; at the root ".." stays there.
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

bool beginsWith(const Components& whole, const Components& start) {
  return whole.size() > start.size() && std::equal(start.begin(), start.end(), whole.begin());
}

// A query or a fragment would be cut off silently, and another file be written.
bool namesWholePath(const URL& url) {
  return url.absoluteString().view().find_first_of("?#") == std::string_view::npos;
}

}  // namespace

String confinedPath(platform::FileManager& files, const URL& file, const URL& folder) {
  const String filePath = file.path();
  const String folderPath = folder.path();
  if (filePath.isAbsent() || folderPath.isAbsent() || !namesWholePath(file)) {
    return {};
  }
  const Components inside = componentsOf(folderPath.view());
  const Components whole = componentsOf(filePath.view());
  if (!beginsWith(whole, inside)) {
    return {};
  }
  // The folder's own path as it stands: a ".." in it may come after a link.
  std::string path = inside.empty() ? std::string() : folderPath.str();
  for (std::size_t index = inside.size(); index < whole.size(); ++index) {
    if (index > inside.size() && files.itemKindAtPath(path) == platform::ItemKind::symbolicLink) {
      return {};
    }
    path += '/';
    path += whole[index];
  }
  return path;
}

}  // namespace orvanta
